// The numbers a person doses from: rounding, line and meal amounts, the total, and how they are written.
#include "DiaryEntry.h"
#include "ExampleData.h"
#include "Formatting.h"
#include "Totals.h"

#include <clocale>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {
DiaryEntryPtr foodLine(qint64 quantity, std::optional<double> carbs)
{
    std::optional<NutrientValue> tracked;
    if (carbs)
        tracked = NutrientValue{COUNTER_TYPE, u"grams"_s, *carbs, 1};
    return DiaryEntryPtr::create(123, basePortionItem(), example::exampleSelectedFood(), quantity,
                                 std::nullopt, tracked);
}

DiaryEntryPtr mealLine(qint64 quantity, const QList<DiaryEntryPtr> &items, qint64 servings)
{
    return DiaryEntryPtr::create(123, RecipeItem{u"meal"_s, 0, items, servings}, quantity);
}
} // namespace

class NumbersTest : public QObject
{
    Q_OBJECT

private slots:
    // A food line is round1(quantity x carbohydrates): one decimal, halves away from zero. The total sums
    // the rounded lines and rounds again.
    void amounts_data()
    {
        QTest::addColumn<QList<DiaryEntryPtr>>("lines");
        QTest::addColumn<double>("amount");
        QTest::newRow("0.05 rounds up") << QList{foodLine(1, 0.05)} << 0.1;
        QTest::newRow("-0.05 rounds down") << QList{foodLine(1, -0.05)} << -0.1;
        QTest::newRow("0.04 rounds to 0") << QList{foodLine(1, 0.04)} << 0.0;
        QTest::newRow("3 x 4.25") << QList{foodLine(3, 4.25)} << 12.8;
        QTest::newRow("food without tracked nutrient") << QList{foodLine(3, std::nullopt)} << 0.0;
        const DiaryEntryPtr emptied = mealLine(2, {foodLine(1, 5.0)}, 1);
        emptied->setRecipeItem(std::nullopt);
        QTest::newRow("meal line without its meal") << QList{emptied} << 0.0;
        QTest::newRow("meal of 2 servings") << QList{mealLine(1, {foodLine(3, 4.25)}, 2)} << 6.4;
        QTest::newRow("meal twice: rounded per serving, then again")
            << QList{mealLine(2, {foodLine(1, 0.33), foodLine(1, 0.33)}, 3)} << 0.4;
        QTest::newRow("meal with 0 servings counts as one")
            << QList{mealLine(1, {foodLine(2, 5.0)}, 0)} << 10.0;
        QTest::newRow("empty meal") << QList{mealLine(5, {}, 1)} << 0.0;
        const DiaryEntryPtr inner1 = mealLine(3, {foodLine(1, 10.0)}, 4),
                            inner2 = mealLine(1, {foodLine(1, 1.25)}, 1);
        QTest::newRow("meal of meals") << QList{mealLine(1, {inner1, inner2}, 2)} << 4.4;
        QTest::newRow("total of 6.4 and 0.05")
            << QList{mealLine(1, {foodLine(3, 4.25)}, 2), foodLine(1, 0.05)} << 6.5;
        QTest::newRow("total of rounded lines") << QList{foodLine(1, 0.04), foodLine(1, 0.04)} << 0.0;
    }

    void amounts()
    {
        QFETCH(QList<DiaryEntryPtr>, lines);
        QFETCH(double, amount);
        if (lines.size() == 1)
            QCOMPARE(lines.first()->totalTrackedNutrient(), amount);
        QCOMPARE(calculateTotal(lines), amount);
    }

    // Amounts drop ".0" and never take an exponent; a value with places is rounded, ties to even.
    void writesNumbers_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &written, const QString &expected) {
            QTest::newRow(name) << written << expected;
        };
        row("whole amount", amountText(12.0), u"12 g"_s);
        row("half amount", amountText(12.5), u"12.5 g"_s);
        row("zero amount", amountText(0.0), u"0 g"_s);
        row("a zero digit is kept, 10.05 never 105", amountText(10.05), u"10.05 g"_s);
        row("hundred thousand, no exponent", amountText(100000.0), u"100000 g"_s);
        row("stepper maximum", amountText(1289987.1), u"1289987.1 g"_s);
        row("tiny", amountText(0.00001), u"0.00001 g"_s);
        const std::optional<int> asGiven;
        row("grams, 2 places", formatValueWithUnits(u"12.3456"_s, u"grams"_s, 2), u"12.35g"_s);
        row("calories, 0 places", formatValueWithUnits(u"96.0"_s, u"calories"_s, 0), u"96 kcal"_s);
        row("millilitres as given", formatValueWithUnits(u"0.5"_s, u"millilitres"_s, asGiven), u"0.5ml"_s);
        row("micrograms", formatValueWithUnits(u"2.25"_s, u"micrograms"_s, 1), u"2.2µg"_s);
        row("capitalised unit is unknown", formatValueWithUnits(u"1"_s, u"Grams"_s, 0), u"1 Grams"_s);
        row("empty unit", formatValueWithUnits(u"5.0"_s, QString(), 0), u"5 "_s);
        row("tie of 7.5 goes to even", formatValueWithUnits(u"7.5"_s, u"grams"_s, 0), u"8g"_s);
        row("tie of 6.5 goes to even", formatValueWithUnits(u"6.5"_s, u"grams"_s, 0), u"6g"_s);
        row("exponent as given", formatValueWithUnits(u"1e-05"_s, u"grams"_s, asGiven), u"1e-05g"_s);
        row("exponent formatted", formatValueWithUnits(u"1e-05"_s, u"grams"_s, 5), u"0.00001g"_s);
        row("negative", formatValueWithUnits(u"-0.25"_s, u"grams"_s, 1), u"-0.2g"_s);
        row("plus sign", formatValueWithUnits(u"+3.14159"_s, u"grams"_s, 2), u"3.14g"_s);
        row("nan is not a number", formatValueWithUnits(u"nan"_s, u"grams"_s, 1), u"nang"_s);
        row("negative places", formatValueWithUnits(u"1.25"_s, u"grams"_s, -1), u"1.25g"_s);
    }

    void writesNumbers()
    {
        QFETCH(QString, written);
        QFETCH(QString, expected);
        QCOMPARE(written, expected);
    }

    void localeDoesNotChangeTheOutput()
    {
        const QLocale saved;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        const char *previous = std::setlocale(LC_ALL, "de_DE.UTF-8");
        const QString text = formatValueWithUnits(u"12.3456"_s, u"grams"_s, 2);
        const QString amount = amountText(1005.5);
        if (previous)
            std::setlocale(LC_ALL, "C");
        QLocale::setDefault(saved);
        QCOMPARE(text, u"12.35g"_s);
        QCOMPARE(amount, u"1005.5 g"_s);
    }
};

QTEST_GUILESS_MAIN(NumbersTest)
#include "tst_numbers.moc"