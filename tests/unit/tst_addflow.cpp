#include "AddToCalcPreviewUIView.h"
#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "FoodAccompanimentsUIView.h"
#include "SelectPortionUIView.h"

#include <QSignalSpy>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

FoodItem food(qint64 id)
{
    return {u"Food %1"_s.arg(id), id, id, u"Brand"_s, true};
}

// A portion screen showing the sample portions: three pictured, two described.
std::unique_ptr<SelectPortionUIView> portionScreen()
{
    auto view = std::make_unique<SelectPortionUIView>();
    view->setPreview(Preview::Images);
    view->appear();
    return view;
}

} // namespace

// The rules of the portion, preview and suggestion screens, without a window or a network.
class AddFlowTest : public QObject
{
    Q_OBJECT

    EnvironmentVariables *env = EnvironmentVariables::shared();

private slots:
    void init()
    {
        env->setTrackedNutrientListItems({});
        env->setEditRecipeActive(false);
        env->setSearchActive(true);
        env->setAccompanimentsActive(true);
        env->setPortionActive(9040);
        env->setFoodItemForAccompaniments(std::nullopt);
    }

    // The custom field keeps only digits; "Select Portion" needs an amount there.
    void customAmount_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("canSelect");
        QTest::addColumn<qint64>("size");
        QTest::newRow("empty") << u""_s << u""_s << false << qint64(-1);
        QTest::newRow("pasted 12a3") << u"12a3"_s << u"123"_s << true << qint64(123);
        QTest::newRow("sign and point") << u"-1.5"_s << u"15"_s << true << qint64(15);
        QTest::newRow("zero") << u"0"_s << u"0"_s << true << qint64(0);
        QTest::newRow("20 digits") << u"12345678901234567890"_s << u"12345678901234567890"_s << false
                                   << qint64(-1);
    }

    void customAmount()
    {
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QFETCH(bool, canSelect);
        QFETCH(qint64, size);
        const auto view = portionScreen();
        view->selectCustom();
        view->setCustomText(typed);
        QCOMPARE(view->customText(), shown);
        QCOMPARE(view->canSelectPortion(), canSelect);
        QSignalSpy chosen(view.get(), &SelectPortionUIView::chosenPortionChanged);
        view->selectPortion();
        QCOMPARE(chosen.size(), canSelect ? 1 : 0);
        if (canSelect) {
            QCOMPARE(view->chosenPortion()._id, -1);
            QCOMPARE(view->chosenPortion().size, size);
            QCOMPARE(view->chosenPortion().unit, u"grams"_s);
        }
    }

    void theSelectedBoxAndTheCustomAmount()
    {
        const auto view = portionScreen();
        QCOMPARE(view->portionOptions().size(), 3);
        QCOMPARE(view->descPortions().size(), 2);
        QVERIFY(!view->canSelectPortion());
        view->setCustomText(u"80"_s);
        view->selectBox(1);
        QCOMPARE(view->selectedPortionId(), 2);
        QCOMPARE(*view->customPortionSize(), 80); // the field is read again after a box tap
        view->selectCustom();
        QCOMPARE(view->selectedPortion()->size, 80);
        view->setCustomText(u"150"_s); // the amount in the field when "Select Portion" is used counts
        view->selectPortion();
        QCOMPARE(view->chosenPortion().size, 150);
        QVERIFY(view->navigationActive());

        view->setTabOption(1);
        QCOMPARE(view->portionOptions(), view->descPortions());
        view->selectBox(7); // out of range: nothing changes
        QCOMPARE(view->selectedPortionId(), -1);
    }

    void selectPortionHandsBackWithACallback()
    {
        const auto view = portionScreen();
        view->setHasCompleteCallback(true);
        QSignalSpy completed(view.get(), &SelectPortionUIView::completed);
        view->selectBox(0);
        view->selectPortion();
        QCOMPARE(completed.size(), 1);
        QCOMPARE(completed.first().first().value<PortionItem>().id, 1);
        QVERIFY(!view->navigationActive());
    }

    void theCarbohydratesOfThePreview_data()
    {
        QTest::addColumn<double>("perPortion");
        QTest::addColumn<QString>("quantity");
        QTest::addColumn<QString>("shown");
        QTest::newRow("12.5 three times") << 12.5 << u"3"_s << u"37.5g"_s;
        QTest::newRow("12.5 twice drops .0") << 12.5 << u"2"_s << u"25g"_s;
        QTest::newRow("stepper maximum, no exponent") << 12.9 << u"99999"_s << u"1289987.1g"_s;
        QTest::newRow("not a number") << 12.5 << u"x"_s << u"0g"_s;
    }

    void theCarbohydratesOfThePreview()
    {
        QFETCH(double, perPortion);
        QFETCH(QString, quantity);
        QFETCH(QString, shown);
        AddToCalcPreviewUIView view;
        view.startAdding(food(1), example::examplePortionItem());
        QCOMPARE(view.carbohydratesText(), QString()); // before the answer
        view.diaryEntry()->setTrackedNutrient(NutrientValue{u"Carbohydrates"_s, u"grams"_s, perPortion, 1});
        view.setQuantity(quantity);
        QCOMPARE(view.carbohydratesText(), shown);
    }

    void addGoesToTheCalculatorOrTheMeal()
    {
        AddToCalcPreviewUIView view;
        view.startAdding(food(7), example::examplePortionItem());
        QCOMPARE(view.addButtonText(), u"Add to calculator"_s);
        view.add();
        QCOMPARE(env->TrackedNutrientListItems(), QList{view.diaryEntry()});
        QVERIFY(!env->searchActive() && !env->accompanimentsActive());
        QCOMPARE(env->foodItemForAccompaniments()->id, 7);

        env->setEditRecipeActive(true);
        env->setRecipeSearchActive(true);
        AddToCalcPreviewUIView toMeal;
        toMeal.startAdding(food(8), example::examplePortionItem());
        QCOMPARE(toMeal.addButtonText(), u"Add to meal"_s);
        toMeal.add();
        QCOMPARE(env->CurrentRecipeItems(), QList{toMeal.diaryEntry()});
        QCOMPARE(env->TrackedNutrientListItems().size(), 1);
        QVERIFY(!env->recipeSearchActive());

        toMeal.searchMoreFoods();
        QCOMPARE(env->portionActive(), -1);
    }

    void updateStoresTheLineAtItsOwnPosition()
    {
        const DiaryEntryPtr first = example::exampleTrackedNutrient1(),
                            second = example::exampleTrackedNutrient2();
        env->setTrackedNutrientListItems({first, second});
        AddToCalcPreviewUIView view;
        view.startEditing(second.data());
        QCOMPARE(view.mode(), AddToCalcPreviewUIView::Edit);
        QCOMPARE(view.quantity(), u"1"_s);
        QSignalSpy lines(env, &EnvironmentVariables::trackedNutrientListItemsChanged);
        QSignalSpy closed(&view, &AddToCalcPreviewUIView::closeRequested);
        view.setLineQuantity(3);
        view.update();
        QCOMPARE(env->TrackedNutrientListItems(), (QList{first, second}));
        QCOMPARE(second->quantity(), 3);
        QCOMPARE(lines.size(), 1);
        QCOMPARE(closed.size(), 1);
        second->setQuantity(1);
    }

    void theThreeWaysOnFromTheSuggestions()
    {
        FoodAccompanimentsUIView view;
        view.setItems({food(1), food(2), food(3)});
        QSignalSpy select(&view, &FoodAccompanimentsUIView::select);
        env->setFoodItemForAccompaniments(food(9));
        env->setSearchActive(false);

        view.choose(1);
        QCOMPARE(select.size(), 1);
        QCOMPARE(select.takeFirst().first().value<FoodItem>().id, 2);
        QVERIFY(!view.isPresented());
        QVERIFY(!env->foodItemForAccompaniments());

        view.setIsPresented(true);
        view.noThanks();
        QCOMPARE(select.size(), 1);
        QVERIFY(!select.takeFirst().first().isValid());
        QVERIFY(!env->searchActive());

        view.setIsPresented(true);
        view.continueAdding();
        QCOMPARE(select.size(), 0);
        QVERIFY(env->searchActive());
        QVERIFY(!view.isPresented());
    }
};

QTEST_MAIN(AddFlowTest)
#include "tst_addflow.moc"
