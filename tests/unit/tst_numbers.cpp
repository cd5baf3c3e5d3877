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
    void round1RoundsHalvesAwayFromZero_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("rounded");
        QTest::newRow("0.05") << 0.05 << 0.1;
        QTest::newRow("0.25") << 0.25 << 0.3;
        QTest::newRow("12.75") << 12.75 << 12.8;
        QTest::newRow("-0.05") << -0.05 << -0.1;
        QTest::newRow("0.04") << 0.04 << 0.0;
        QTest::newRow("26.9512") << 26.9512 << 27.0;
    }

    void round1RoundsHalvesAwayFromZero()
    {
        QFETCH(double, value);
        QFETCH(double, rounded);
        QCOMPARE(round1(value), rounded);
    }

    void lineAmounts_data()
    {
        QTest::addColumn<DiaryEntryPtr>("line");
        QTest::addColumn<double>("amount");
        QTest::newRow("food 3 x 4.25") << foodLine(3, 4.25) << 12.8;
        QTest::newRow("food without tracked nutrient") << foodLine(3, std::nullopt) << 0.0;
        const DiaryEntryPtr emptied = mealLine(2, {foodLine(1, 5.0)}, 1);
        emptied->setRecipeItem(std::nullopt);
        QTest::newRow("meal line without its meal") << emptied << 0.0;
        QTest::newRow("meal of 2 servings") << mealLine(1, {foodLine(3, 4.25)}, 2) << 6.4;
        QTest::newRow("meal twice: rounded per serving, then again")
            << mealLine(2, {foodLine(1, 0.33), foodLine(1, 0.33)}, 3) << 0.4;
        QTest::newRow("meal with 0 servings counts as one") << mealLine(1, {foodLine(2, 5.0)}, 0) << 10.0;
        QTest::newRow("empty meal") << mealLine(5, {}, 1) << 0.0;
        QTest::newRow("meal of meals")
            << mealLine(1, {mealLine(3, {foodLine(1, 10.0)}, 4), mealLine(1, {foodLine(1, 1.25)}, 1)}, 2)
            << 4.4;
    }

    void lineAmounts()
    {
        QFETCH(DiaryEntryPtr, line);
        QFETCH(double, amount);
        QCOMPARE(line->totalTrackedNutrient(), amount);
    }

    void totalRoundsTheSumOfRoundedLines()
    {
        // A 2-serving meal of 12.8 g gives 6.4 per serving, plus 0.05 rounded to 0.1.
        const QList<DiaryEntryPtr> lines{mealLine(1, {foodLine(3, 4.25)}, 2), foodLine(1, 0.05)};
        QCOMPARE(calculateTotal(lines), 6.5);
        QCOMPARE(calculateTotal({}), 0.0);
        QCOMPARE(calculateTotal({foodLine(1, 0.04), foodLine(1, 0.04)}), 0.0);
    }

    void amountText_data()
    {
        QTest::addColumn<double>("amount");
        QTest::addColumn<QString>("expected");
        QTest::newRow("whole") << 12.0 << u"12 g"_s;
        QTest::newRow("half") << 12.5 << u"12.5 g"_s;
        QTest::newRow("zero") << 0.0 << u"0 g"_s;
        QTest::newRow("hundred") << 100.0 << u"100 g"_s;
        QTest::newRow("a tenth") << 0.1 << u"0.1 g"_s;
        // Never shorten a real digit: an unrounded 10.05 must not read as 105.
        QTest::newRow("zero digit kept") << 10.05 << u"10.05 g"_s;
        // Large amounts stay plain decimals: never "1e+05 g".
        QTest::newRow("hundred thousand") << 100000.0 << u"100000 g"_s;
        QTest::newRow("stepper maximum") << 1289987.1 << u"1289987.1 g"_s;
        QTest::newRow("tiny") << 0.00001 << u"0.00001 g"_s;
    }

    void amountText()
    {
        QFETCH(double, amount);
        QFETCH(QString, expected);
        QCOMPARE(nutrika::amountText(amount), expected);
    }

    void formatValueWithUnits_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<int>("places");
        QTest::addColumn<QString>("expected");
        const int absent = -100;
        QTest::newRow("grams, 2 places") << u"12.3456"_s << u"grams"_s << 2 << u"12.35g"_s;
        QTest::newRow("calories, 0 places") << u"96.0"_s << u"calories"_s << 0 << u"96 kcal"_s;
        QTest::newRow("millilitres, untouched") << u"0.5"_s << u"millilitres"_s << absent << u"0.5ml"_s;
        QTest::newRow("micrograms") << u"2.25"_s << u"micrograms"_s << 1 << u"2.2µg"_s;
        QTest::newRow("unknown unit gets a blank") << u"3.0"_s << u"portion"_s << 1 << u"3.0 portion"_s;
        QTest::newRow("capitalised unit is unknown") << u"1"_s << u"Grams"_s << 0 << u"1 Grams"_s;
        QTest::newRow("empty unit") << u"5.0"_s << u""_s << 0 << u"5 "_s;
        QTest::newRow("tie of 7.5 goes to even") << u"7.5"_s << u"grams"_s << 0 << u"8g"_s;
        QTest::newRow("tie of 6.5 goes to even") << u"6.5"_s << u"grams"_s << 0 << u"6g"_s;
        QTest::newRow("exponent untouched") << u"1e-05"_s << u"grams"_s << absent << u"1e-05g"_s;
        QTest::newRow("exponent formatted") << u"1e-05"_s << u"grams"_s << 5 << u"0.00001g"_s;
        QTest::newRow("negative") << u"-0.25"_s << u"grams"_s << 1 << u"-0.2g"_s;
        QTest::newRow("plus sign") << u"+3.14159"_s << u"grams"_s << 2 << u"3.14g"_s;
        QTest::newRow("not a number is left alone") << u"abc"_s << u"grams"_s << 1 << u"abcg"_s;
        QTest::newRow("nan is not a number") << u"nan"_s << u"grams"_s << 1 << u"nang"_s;
        QTest::newRow("negative places leave the value") << u"1.25"_s << u"grams"_s << -1 << u"1.25g"_s;
    }

    void formatValueWithUnits()
    {
        QFETCH(QString, value);
        QFETCH(QString, unit);
        QFETCH(int, places);
        QFETCH(QString, expected);
        const std::optional<int> decimalPlaces = places == -100 ? std::nullopt : std::optional<int>(places);
        QCOMPARE(nutrika::formatValueWithUnits(value, unit, decimalPlaces), expected);
    }

    void localeDoesNotChangeTheOutput()
    {
        const QLocale saved;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        const char *previous = std::setlocale(LC_ALL, "de_DE.UTF-8");
        const QString text = nutrika::formatValueWithUnits(u"12.3456"_s, u"grams"_s, 2);
        const QString amount = nutrika::amountText(1005.5);
        if (previous)
            std::setlocale(LC_ALL, "C");
        QLocale::setDefault(saved);
        QCOMPARE(text, u"12.35g"_s);
        QCOMPARE(amount, u"1005.5 g"_s);
    }
};

QTEST_GUILESS_MAIN(NumbersTest)
#include "tst_numbers.moc"
