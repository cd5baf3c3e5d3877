#include "CarbCounterUIView.h"
#include "EnvironmentVariables.h"
#include "ExampleData.h"

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
        const auto announced = [&] { // the rows announced since the last look, once each
            QList<int> changed;
            for (const QList<QVariant> &signal : std::as_const(rows)) {
                if (const int row = signal.at(0).toModelIndex().row(); !changed.contains(row))
                    changed << row;
            }
            rows.clear();
            return changed;
        };

        line->setQuantity(4);
        QCOMPARE(announced(), QList<int>{0});
        ingredient->setTrackedNutrient(NutrientValue{u"Carbohydrates"_s, u"grams"_s, 20, 1});
        QCOMPARE(announced(), QList<int>{1});
        QCOMPARE(column(view, CalculatorLinesModel::AmountRole), (QStringList{u"17 g"_s, u"40 g"_s}));
        QCOMPARE(view.totalText(), u"57 g"_s);
        QVERIFY(total.size() >= 2);

        RecipeItem renamed = *meal->recipeItem();
        renamed.name = u"Renamed"_s;
        renamed.items.append(foodLine(1, 1));
        meal->setRecipeItem(renamed);
        QCOMPARE(announced(), QList<int>{1});
        QCOMPARE(column(view, CalculatorLinesModel::TitleRole)[1], u"Renamed"_s);
        QCOMPARE(view.totalText(), u"59 g"_s);
    }

    // The sample lines and a tapped remove are the QML tests'; here equal lines told apart by position,
    // and a line whose nutrients never arrived, which shows no amount and counts zero.
    void removeTakesTheLineAtThatPosition()
    {
        CarbCounterUIView view;
        const DiaryEntryPtr a = foodLine(10, 1), b = foodLine(10, 1), c = foodLine(0.5, 1);
        const DiaryEntryPtr pending =
            DiaryEntryPtr::create(123, example::examplePortionItem(), example::exampleSelectedFood());
        env->setTrackedNutrientListItems({a, b, pending, c});
        QCOMPARE(column(view, CalculatorLinesModel::AmountRole),
                 (QStringList{u"10 g"_s, u"10 g"_s, QString(), u"0.5 g"_s}));
        view.remove(1);
        QCOMPARE(env->TrackedNutrientListItems(), (QList<DiaryEntryPtr>{a, pending, c}));
        QCOMPARE(view.totalText(), u"10.5 g"_s);
        b->setQuantity(9); // a removed line no longer moves the total
        QCOMPARE(view.totalText(), u"10.5 g"_s);

        QTest::ignoreMessage(QtWarningMsg, "CarbCounterUIView: no line 5 to remove");
        view.remove(5);
        while (view.lines()->rowCount() > 0)
            view.remove(0);
        QVERIFY(env->TrackedNutrientListItems().isEmpty());
        QVERIFY(!env->searchActive()); // not reopened until the screen shows again
    }

    // Showing the calculator ends the add flow and installs the close; the host hears it before the
    // container closes in the entry test, and still once the screen is gone.
    void appearingEndsTheFlowAndInstallsTheClose()
    {
        int hostCalls = 0;
        env->setTrackedNutrientListItems({foodLine(1, 1)});
        auto *view = new CarbCounterUIView([&] { ++hostCalls; });
        view->appear();
        QVERIFY(!env->accompanimentsActive() && !env->searchActive());
        QCOMPARE(env->portionActive(), -1);
        delete view;
        env->dismiss();
        QCOMPARE(hostCalls, 1);

        CarbCounterUIView forQml; // a QML host hears the callback as a signal
        QSignalSpy callback(&forQml, &CarbCounterUIView::dismissCallback);
        forQml.appear();
        env->dismiss();
        QCOMPARE(callback.size(), 1);
    }

    // The journey sees the suggestions come; here the replies that bring none, two replies in one list,
    // and a chosen suggestion that is not asked for again.
    void suggestionsComeOneSecondAfterANonEmptyReply()
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
        QTest::qWait(1100);
        QVERIFY(view.accompanimentListItems().isEmpty());
        QVERIFY(!view.showAccompanimentList());

        QElapsedTimer clock;
        clock.start();
        pending.first()(QList<FoodItem>{food(1, u"Butter"_s)});
        pending.first()(QList<FoodItem>{food(2, u"Jam"_s)});
        QCOMPARE(view.accompanimentListItems().size(), 2);
        QVERIFY(!view.showAccompanimentList());
        QTRY_VERIFY_WITH_TIMEOUT(view.showAccompanimentList(), 5000);
        QVERIFY(clock.elapsed() >= 990);

        view.selectAccompaniment(food(1, u"Butter"_s));
        QVERIFY(!env->foodItemForAccompaniments() && view.accompanimentListItems().isEmpty());
        QVERIFY(env->accompanimentsActive() && !view.showAccompanimentList());
        view.appear(); // back from its portions
        QCOMPARE(requested.size(), 2);
    }
};

QTEST_MAIN(CalculatorTest)
#include "tst_calculator.moc"
