#include "DiaryEntry.h"
#include "ExampleData.h"
#include "Totals.h"

#include <QTest>

using namespace nutrika;

namespace {
DiaryEntryPtr foodLine(qint64 quantity, std::optional<double> carbs)
{
    std::optional<NutrientValue> tracked;
    if (carbs)
        tracked = NutrientValue{COUNTER_TYPE, QStringLiteral("grams"), *carbs, 1};
    return DiaryEntryPtr::create(123, basePortionItem(), example::exampleSelectedFood(), quantity,
                                 std::nullopt, tracked);
}

DiaryEntryPtr mealLine(qint64 quantity, const QList<DiaryEntryPtr> &items, qint64 servings)
{
    return DiaryEntryPtr::create(123, RecipeItem{QStringLiteral("meal"), 0, items, servings}, quantity);
}
} // namespace

class TotalsTest : public QObject
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
        // Worked example: a 2-serving meal of 12.8 g gives 6.4 per serving, plus 0.05 rounded to 0.1.
        const QList<DiaryEntryPtr> lines{mealLine(1, {foodLine(3, 4.25)}, 2), foodLine(1, 0.05)};
        QCOMPARE(calculateTotal(lines), 6.5);
        QCOMPARE(calculateTotal({}), 0.0);
        QCOMPARE(calculateTotal({foodLine(1, 0.04), foodLine(1, 0.04)}), 0.0);
    }
};

QTEST_GUILESS_MAIN(TotalsTest)
#include "tst_totals.moc"
