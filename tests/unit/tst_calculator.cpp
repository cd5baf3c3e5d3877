#include "CarbCounterUIView.h"
#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "StdoutCapture.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

DiaryEntryPtr foodLine(double carbsPerPortion, qint64 quantity)
{
    NutrientValue carbs{u"Carbohydrates"_s, u"grams"_s, carbsPerPortion, 1};
    return DiaryEntryPtr::create(123, example::examplePortionItem(), example::exampleSelectedFood(), quantity,
                                 QList{carbs}, carbs);
}

// The model's text for one role of every row.
QStringList column(const CarbCounterUIView &view, CalculatorLinesModel::Role role)
{
    QStringList texts;
    for (int row = 0; row < view.lines()->rowCount(); ++row)
        texts.append(view.lines()->index(row).data(role).toString());
    return texts;
}

FoodItem food(qint64 id, const QString &description)
{
    return {description, id, id, u"Brand"_s, true};
}

} // namespace

class CalculatorTest : public QObject
{
    Q_OBJECT

    EnvironmentVariables *env = EnvironmentVariables::shared();

private slots:
    void init()
    {
        env->setTrackedNutrientListItems({});
        env->setFoodItemForAccompaniments(std::nullopt);
        env->setSearchActive(false);
        env->setAccompanimentsActive(true);
        env->setPortionActive(77);
        env->setDismissFunction([] {});
    }

    void linesAmountsAndTotal()
    {
        CarbCounterUIView view;
        env->setTrackedNutrientListItems(
            {example::exampleTrackedNutrient1(), example::exampleTrackedNutrient2(),
             example::exampleDiaryRecipeItem1(), example::exampleDiaryRecipeItem2()});
        QCOMPARE(column(view, CalculatorLinesModel::TitleRole),
                 (QStringList{example::exampleSelectedFood().description,
                              example::exampleSelectedFood2().description, u"Cheeseburger"_s,
                              u"Half A Burger"_s}));
        QCOMPARE(column(view, CalculatorLinesModel::AmountRole),
                 (QStringList{u"25.8 g"_s, u"12.9 g"_s, u"77.4 g"_s, u"19.4 g"_s}));
        QCOMPARE(column(view, CalculatorLinesModel::IsFoodRole),
                 (QStringList{u"true"_s, u"true"_s, u"false"_s, u"false"_s}));
        QCOMPARE(view.totalText(), u"135.5 g"_s);
        QCOMPARE(view.counterHeader(), u"Total Carbohydrates"_s);

        // A line whose nutrients never arrived shows no amount and counts zero.
        env->setTrackedNutrientListItems(
            {DiaryEntryPtr::create(123, example::examplePortionItem(), example::exampleSelectedFood()),
             foodLine(2, 1)});
        QCOMPARE(column(view, CalculatorLinesModel::AmountRole), (QStringList{QString(), u"2 g"_s}));
        QCOMPARE(view.totalText(), u"2 g"_s);
    }

    // Edits made on other screens, to a line or to an ingredient of a meal line, reach the row and the
    // total at once.
    void nestedEditsMoveTheLineAndTheTotal()
    {
        CarbCounterUIView view;
        QAbstractItemModelTester tester(view.lines(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        const DiaryEntryPtr line = foodLine(4.25, 3);
        const DiaryEntryPtr ingredient = foodLine(10, 2);
        const DiaryEntryPtr inner = DiaryEntryPtr::create(123, RecipeItem{u"Inner"_s, 1, {ingredient}, 2}, 1);
        const DiaryEntryPtr meal = DiaryEntryPtr::create(123, RecipeItem{u"Meal"_s, 2, {inner}, 1}, 2);
        env->setTrackedNutrientListItems({line, meal});
        QCOMPARE(column(view, CalculatorLinesModel::AmountRole), (QStringList{u"12.8 g"_s, u"20 g"_s}));
        QSignalSpy total(&view, &CarbCounterUIView::totalChanged);
        QSignalSpy rows(view.lines(), &QAbstractItemModel::dataChanged);

        line->setQuantity(4);
        ingredient->setTrackedNutrient(NutrientValue{u"Carbohydrates"_s, u"grams"_s, 20, 1});
        QCOMPARE(column(view, CalculatorLinesModel::AmountRole), (QStringList{u"17 g"_s, u"40 g"_s}));
        QCOMPARE(view.totalText(), u"57 g"_s);

        RecipeItem renamed = *meal->recipeItem();
        renamed.name = u"Renamed"_s;
        renamed.items.append(foodLine(1, 1));
        meal->setRecipeItem(renamed);
        QCOMPARE(column(view, CalculatorLinesModel::TitleRole)[1], u"Renamed"_s);
        QCOMPARE(view.totalText(), u"59 g"_s);
        QVERIFY(total.size() >= 3);
        QCOMPARE(rows.first().at(0).toModelIndex().row(), 0);
        QCOMPARE(rows.last().at(0).toModelIndex().row(), 1);
    }

    void removeTakesTheLineAtThatPosition()
    {
        CarbCounterUIView view;
        const DiaryEntryPtr a = foodLine(10, 1), b = foodLine(10, 1), c = foodLine(0.5, 1);
        env->setTrackedNutrientListItems({a, b, c});
        view.remove(1); // equal lines are told apart by position
        QCOMPARE(env->TrackedNutrientListItems(), (QList<DiaryEntryPtr>{a, c}));
        QCOMPARE(view.lines()->rowCount(), 2);
        QCOMPARE(view.totalText(), u"10.5 g"_s);
        b->setQuantity(9); // a removed line no longer moves the total
        QCOMPARE(view.totalText(), u"10.5 g"_s);

        QTest::ignoreMessage(QtWarningMsg, "CarbCounterUIView: no line 5 to remove");
        view.remove(5);
        view.remove(0);
        view.remove(0);
        QVERIFY(env->TrackedNutrientListItems().isEmpty());
        QCOMPARE(view.totalText(), u"0 g"_s);
        QVERIFY(!env->searchActive()); // not reopened until the screen shows again
    }

    void appearanceSteps_data()
    {
        QTest::addColumn<bool>("empty");
        QTest::addColumn<int>("preview");
        QTest::addColumn<bool>("searchActive");
        QTest::addColumn<int>("lines");
        QTest::newRow("empty calculator opens the search") << true << int(Preview::NotPreview) << true << 0;
        QTest::newRow("lines keep the calculator") << false << int(Preview::NotPreview) << false << 1;
        QTest::newRow("preview shows the samples") << true << int(Preview::Main) << false << 4;
    }

    void appearanceSteps()
    {
        QFETCH(bool, empty);
        QFETCH(int, preview);
        QFETCH(bool, searchActive);
        QFETCH(int, lines);
        if (!empty)
            env->setTrackedNutrientListItems({foodLine(1, 1)});
        CarbCounterUIView view;
        view.setPreview(Preview::Value(preview));
        QStringList order;
        connect(env, &EnvironmentVariables::accompanimentsActiveChanged, this,
                [&] { order << u"accompaniments"_s; });
        connect(env, &EnvironmentVariables::portionActiveChanged, this, [&] { order << u"portion"_s; });
        connect(env, &EnvironmentVariables::dismissFunctionChanged, this, [&] { order << u"dismiss"_s; });
        connect(env, &EnvironmentVariables::searchActiveChanged, this, [&] { order << u"search"_s; });
        view.appear();
        disconnect(env, nullptr, this, nullptr);
        QVERIFY(!env->accompanimentsActive());
        QCOMPARE(env->portionActive(), -1);
        QCOMPARE(env->searchActive(), searchActive);
        QCOMPARE(env->TrackedNutrientListItems().size(), lines);
        QStringList expected{u"accompaniments"_s, u"portion"_s, u"dismiss"_s};
        if (searchActive)
            expected << u"search"_s;
        QCOMPARE(order, expected);
    }

    void closeCallsTheHostOnceBeforeTheDismissal()
    {
        QStringList calls;
        auto *view = new CarbCounterUIView([&] { calls << u"host"_s; });
        connect(view, &CarbCounterUIView::dismissPresentation, this, [&] { calls << u"dismiss"_s; });
        view->appear();
        env->dismiss();
        QCOMPARE(calls, (QStringList{u"host"_s, u"dismiss"_s}));
        delete view;
        calls.clear();
        env->dismiss(); // the session outlives the screen: the host is still told, nothing dangles
        QCOMPARE(calls, QStringList{u"host"_s});
    }

    void aQmlHostHearsTheCallbackAsASignal()
    {
        CarbCounterUIView view;
        QSignalSpy callback(&view, &CarbCounterUIView::dismissCallback);
        QSignalSpy dismissal(&view, &CarbCounterUIView::dismissPresentation);
        view.appear();
        env->dismiss();
        QCOMPARE(callback.size(), 1);
        QCOMPARE(dismissal.size(), 1);
    }

    void suggestionsAreShownOneSecondAfterANonEmptyReply()
    {
        CarbCounterUIView view;
        QList<CarbCounterUIView::FoodsDone> pending;
        QList<qint64> requested;
        view.setAccompanimentRequest([&](qint64 id, QObject *, CarbCounterUIView::FoodsDone done) {
            requested << id;
            pending << std::move(done);
        });
        env->setTrackedNutrientListItems({foodLine(1, 1)});
        env->setFoodItemForAccompaniments(food(42, u"Bread"_s));
        view.appear();
        view.appear();
        QCOMPARE(requested, (QList<qint64>{42, 42}));

        pending.takeFirst()(std::nullopt); // a failed request changes nothing
        pending.first()(QList<FoodItem>{});
        QVERIFY(view.accompanimentListItems().isEmpty());
        QTest::qWait(1100);
        QVERIFY(!view.showAccompanimentList());

        QElapsedTimer clock;
        clock.start();
        StdoutCapture output;
        pending.first()(QList<FoodItem>{food(1, u"Butter"_s)});
        pending.first()(QList<FoodItem>{food(2, u"Jam"_s)}); // both answers land in the same list
        QCOMPARE(view.accompanimentListItems().size(), 2);
        const QList<QByteArray> lines = output.lines(); // each reply dumps the whole list
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines[1].startsWith("[{") && lines[1].contains("Butter") && lines[1].contains("Jam"));
        QVERIFY(!view.showAccompanimentList());
        QTRY_VERIFY_WITH_TIMEOUT(view.showAccompanimentList(), 5000);
        QVERIFY(clock.elapsed() >= 990);
    }

    void choosingASuggestionOpensItsPortions()
    {
        CarbCounterUIView view;
        view.setAccompanimentRequest([](qint64, QObject *, CarbCounterUIView::FoodsDone done) {
            done(QList<FoodItem>{food(1, u"Butter"_s)});
        });
        env->setTrackedNutrientListItems({foodLine(1, 1)});
        env->setFoodItemForAccompaniments(food(42, u"Bread"_s));
        view.appear();
        view.setShowAccompanimentList(true);
        view.selectAccompaniment(food(1, u"Butter"_s));
        QVERIFY(!env->foodItemForAccompaniments());
        QCOMPARE(view.accompanimentItem()->description, u"Butter"_s);
        QVERIFY(!view.showAccompanimentList());
        QVERIFY(view.accompanimentListItems().isEmpty());
        QVERIFY(env->accompanimentsActive());

        view.appear(); // coming back clears the flag and asks for nothing
        QVERIFY(!env->accompanimentsActive());
        QVERIFY(view.accompanimentListItems().isEmpty());
    }
};

QTEST_MAIN(CalculatorTest)
#include "tst_calculator.moc"
