#include "CarbCounterUIView.h"
#include "CreateRecipeUIView.h"
#include "EnvironmentVariables.h"
#include "RecipeSearchUIView.h"
#include "RecipeStore.h"
#include "StoreFixture.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

using Mode = CreateRecipeUIView::Mode;

namespace {

// A food ingredient: `quantity` portions of `grams` g, each with `carbs` g of carbohydrates.
DiaryEntryPtr ingredient(qint64 quantity, qint64 grams, double carbs = 0, const QString &name = u"Oats"_s)
{
    PortionItem portion = basePortionItem();
    portion.size = grams;
    const NutrientValue tracked{u"Carbohydrates"_s, u"grams"_s, carbs, 1};
    return DiaryEntryPtr::create(123, portion, FoodItem{name, 1, 1, QString(), false}, quantity,
                                 QList{tracked}, tracked);
}

DiaryEntryPtr mealLine(const QList<DiaryEntryPtr> &items, qint64 servings = 1, qint64 quantity = 1,
                       qint64 id = -1, const QString &name = u"Porridge"_s)
{
    return DiaryEntryPtr::create(123, RecipeItem{name, id, items, servings}, quantity);
}

struct Opened
{
    std::unique_ptr<CreateRecipeUIView> view = std::make_unique<CreateRecipeUIView>();
    DiaryEntryPtr entry;
};

Opened opened(Mode mode, Mode lastMode, const QList<DiaryEntryPtr> &items = {}, qint64 servings = 1)
{
    Opened o;
    o.entry = mealLine(items, servings);
    if (!o.view->open(o.entry, mode, lastMode, u"1"_s))
        qFatal("a meal line was refused");
    return o;
}

} // namespace

// The rules of the meal editor, without a window: modes, weights, carbohydrates, the working list and
// the ways out to the store and the calculator.
class CreateRecipeTest : public QObject
{
    Q_OBJECT
    StoreFixture m_store;
    EnvironmentVariables *env = EnvironmentVariables::shared();

private slots:
    void init()
    {
        StoreFixture::clear();
        env->setTrackedNutrientListItems({});
        env->setEditRecipeActive(false);
        env->setRecipeSearchActive(false);
        env->setSearchActive(true);
    }

    void modeTable_data()
    {
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<Mode>("lastMode");
        QTest::addColumn<QString>("link");
        QTest::addColumn<bool>("composing");
        QTest::addColumn<bool>("quantityRows");
        QTest::addColumn<bool>("quantityStepper");
        QTest::addColumn<bool>("removable");
        QTest::addColumn<CreateRecipeUIView::Actions>("actions");
        QTest::newRow("new") << Mode::New << Mode::Select << u""_s << true << false << false << false
                             << CreateRecipeUIView::Compose;
        QTest::newRow("edit") << Mode::Edit << Mode::Select << u"Cancel"_s << true << false << false << true
                              << CreateRecipeUIView::Compose;
        QTest::newRow("view") << Mode::View << Mode::Select << u"Edit"_s << false << true << false << false
                              << CreateRecipeUIView::NoActions;
        QTest::newRow("select after edit") << Mode::Select << Mode::Edit << u"Edit"_s << false << true << true
                                           << false << CreateRecipeUIView::AddToCalculator;
        QTest::newRow("select after view") << Mode::Select << Mode::View << u"Edit"_s << false << true << true
                                           << false << CreateRecipeUIView::Update;
    }

    void modeTable()
    {
        QFETCH(Mode, mode);
        QFETCH(Mode, lastMode);
        const Opened o = opened(mode, lastMode, {ingredient(1, 10)});
        const CreateRecipeUIView &view = *o.view;
        QTEST(view.headerLinkText(), "link");
        QTEST(view.composing(), "composing");
        QTEST(view.quantityRowsShown(), "quantityRows");
        QTEST(view.quantityEditable(), "quantityStepper");
        QTEST(view.removable(), "removable");
        QTEST(view.actions(), "actions");
    }

    // Each write of the mode keeps the one before; the header link goes back to it; "Save Meal" leaves a
    // new meal in select with edit behind it, anything else in the mode before.
    void modeChanges_data()
    {
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<Mode>("lastMode");
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<Mode>("endMode");
        QTest::addColumn<Mode>("endLastMode");
        QTest::newRow("list: edit") << Mode::Select << Mode::Edit << QStringList{u"link"_s} << Mode::Edit
                                    << Mode::Select;
        QTest::newRow("list: edit, cancel")
            << Mode::Select << Mode::Edit << QStringList{u"link"_s, u"link"_s} << Mode::Select << Mode::Edit;
        QTest::newRow("list: edit, save")
            << Mode::Select << Mode::Edit << QStringList{u"link"_s, u"save"_s} << Mode::Select << Mode::Edit;
        QTest::newRow("new: save") << Mode::New << Mode::Select << QStringList{u"save"_s} << Mode::Select
                                   << Mode::Edit;
        QTest::newRow("new: the link does nothing")
            << Mode::New << Mode::Select << QStringList{u"link"_s} << Mode::New << Mode::Select;
        QTest::newRow("calculator: edit")
            << Mode::View << Mode::Select << QStringList{u"link"_s} << Mode::Select << Mode::View;
        QTest::newRow("calculator: edit, edit")
            << Mode::View << Mode::Select << QStringList{u"link"_s, u"link"_s} << Mode::View << Mode::Select;
    }

    void modeChanges()
    {
        QFETCH(Mode, mode);
        QFETCH(Mode, lastMode);
        QFETCH(QStringList, steps);
        const Opened o = opened(mode, lastMode);
        for (const QString &step : steps)
            step == u"link" ? o.view->toggleMode() : o.view->saveMeal();
        QTEST(o.view->mode(), "endMode");
        QTEST(o.view->lastMode(), "endLastMode");
    }

    void openings_data()
    {
        QTest::addColumn<bool>("food");
        QTest::addColumn<QString>("error");
        QTest::newRow("meal line") << false << QString();
        QTest::newRow("food line") << true << u"diaryEntry cannot be a of type food, only recipes allowed"_s;
    }

    // The calculator's way in: previous mode select and the line's quantity; a food line is refused.
    void openings()
    {
        QFETCH(bool, food);
        const DiaryEntryPtr line = food ? ingredient(2, 40) : mealLine({ingredient(2, 40)}, 1, 3);
        env->setTrackedNutrientListItems({ingredient(1, 1), line});
        CreateRecipeUIView view;
        if (food)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"only recipes allowed"_s));
        QCOMPARE(view.openLine(line.data(), Mode::View), !food);
        QTEST(view.error(), "error");
        if (food) {
            QVERIFY(!view.diaryEntry());
            return;
        }
        QCOMPARE(view.diaryEntry(), line);
        QCOMPARE(view.mode(), Mode::View);
        QCOMPARE(view.lastMode(), Mode::Select);
        QCOMPARE(view.quantity(), u"3"_s);
        QCOMPARE(view.actions(), CreateRecipeUIView::NoActions);
    }

    // The lines the saved-meal list opens the editor on.
    void listLines()
    {
        const DiaryEntryPtr fresh = RecipeSearchUIView::newMealEntry();
        QCOMPARE(fresh->id(), 123);
        QCOMPARE(fresh->quantity(), 1);
        QCOMPARE(fresh->recipeItem()->name, u"New Meal"_s);
        QCOMPARE(fresh->recipeItem()->id, -1);
        QVERIFY(fresh->recipeItem()->items.isEmpty());
        QCOMPARE(fresh->recipeItem()->servings, 1);
        const DiaryEntryPtr saved = RecipeSearchUIView::savedMealEntry(RecipeItem{u"Stew"_s, 4, {}, 3});
        QCOMPARE(saved->id(), 123);
        QCOMPARE(saved->quantity(), 1);
        QCOMPARE(saved->recipeItem()->id, 4);
    }

    void weights_data()
    {
        QTest::addColumn<QList<DiaryEntryPtr>>("items");
        QTest::addColumn<qint64>("servings");
        QTest::addColumn<QString>("total");
        QTest::addColumn<QString>("onePortion");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("no ingredients")
            << QList<DiaryEntryPtr>{} << qint64(1) << u"0 g"_s << u"0 g"_s << QStringList{};
        QTest::newRow("150 g and 45 g in 4")
            << QList{ingredient(1, 150), ingredient(1, 45)} << qint64(4) << u"195 g"_s << u"49 g"_s
            << QStringList{u"Oats\n(1 X 150.0 g)|150 g"_s, u"Oats\n(1 X 45.0 g)|45 g"_s};
        QTest::newRow("two 40 g portions") << QList{ingredient(2, 40)} << qint64(1) << u"80 g"_s << u"80 g"_s
                                           << QStringList{u"Oats\n(2 X 40.0 g)|80 g"_s};
        QTest::newRow("a half rounds up") << QList{ingredient(1, 10)} << qint64(4) << u"10 g"_s << u"3 g"_s
                                          << QStringList{u"Oats\n(1 X 10.0 g)|10 g"_s};
        // A meal inside a meal weighs its servings' share: 300 g in 2 servings, taken once.
        QTest::newRow("meal inside") << QList{mealLine({ingredient(3, 100)}, 2, 1, 0, u"Soup"_s),
                                              ingredient(1, 50)}
                                     << qint64(3) << u"200 g"_s << u"67 g"_s
                                     << QStringList{u"Soup\n(1 X 150.0 g)|150 g"_s,
                                                    u"Oats\n(1 X 50.0 g)|50 g"_s};
    }

    void weights()
    {
        QFETCH(QList<DiaryEntryPtr>, items);
        QFETCH(qint64, servings);
        const Opened o = opened(Mode::Edit, Mode::Select, items, servings);
        QTEST(o.view->totalWeightText(), "total");
        QTEST(o.view->onePortionText(), "onePortion");
        QStringList rows;
        for (const QVariant &row : o.view->ingredients())
            rows << row.toMap().value(u"label"_s).toString() + u'|' +
                        row.toMap().value(u"weight"_s).toString();
        QTEST(rows, "rows");
    }

    // Servings from the stepper reach the meal and the one-portion weight at once.
    void servingsAndName()
    {
        const Opened o = opened(Mode::New, Mode::Select, {ingredient(1, 150), ingredient(1, 45)});
        QSignalSpy meal(o.view.get(), &CreateRecipeUIView::mealChanged);
        o.view->setServings(4);
        QCOMPARE(o.entry->recipeItem()->servings, 4);
        QCOMPARE(o.view->onePortionText(), u"49 g"_s);
        QVERIFY(meal.size() >= 1);
        o.view->setRecipeName(u"Porridge with banana"_s);
        QCOMPARE(o.entry->recipeItem()->name, u"Porridge with banana"_s);
        QCOMPARE(o.view->title(), u"Porridge"_s);
    }

    void totalCarbohydrates_data()
    {
        QTest::addColumn<QString>("quantity");
        QTest::addColumn<QString>("shown");
        // One serving: round1(3 x 4.25) / 2 = 6.4.
        QTest::newRow("one") << u"1"_s << u"6.4 g"_s;
        QTest::newRow("three") << u"3"_s << u"19.2 g"_s;
        QTest::newRow("five keeps .0") << u"5"_s << u"32.0 g"_s;
    }

    void totalCarbohydrates()
    {
        QFETCH(QString, quantity);
        const Opened o = opened(Mode::Select, Mode::Edit, {ingredient(3, 40, 4.25)}, 2);
        o.view->setQuantity(quantity);
        QTEST(o.view->totalTrackedText(), "shown");
    }

    // Ingredients flow through the session's working list: copied out when shown, back in after the
    // search added to it, emptied by removal; an addition after a save joins the saved ingredients.
    void workingList()
    {
        env->setCurrentRecipeItems({ingredient(9, 9)}); // left by another meal
        const DiaryEntryPtr oats = ingredient(2, 40);
        const Opened o = opened(Mode::Edit, Mode::Select, {oats});
        o.view->appear();
        QVERIFY(env->editRecipeActive());
        QCOMPARE(env->CurrentRecipeItems(), QList{oats});

        const DiaryEntryPtr banana = ingredient(1, 118);
        env->setCurrentRecipeItems(QList(env->CurrentRecipeItems()) << banana); // the preview's "Add to meal"
        o.view->appear();
        QCOMPARE(o.entry->recipeItem()->items, (QList{oats, banana}));
        QCOMPARE(o.view->totalWeightText(), u"198 g"_s);

        o.view->saveMeal();
        QVERIFY(env->CurrentRecipeItems().isEmpty());
        o.view->toggleMode();
        QCOMPARE(o.view->mode(), Mode::Edit);
        o.view->addIngredients();
        QVERIFY(env->recipeSearchActive());
        const DiaryEntryPtr milk = ingredient(1, 200);
        env->setCurrentRecipeItems(QList(env->CurrentRecipeItems()) << milk);
        env->setRecipeSearchActive(false);
        o.view->appear();
        QCOMPARE(o.entry->recipeItem()->items, (QList{oats, banana, milk}));

        for (int i = 0; i < 3; ++i)
            o.view->removeIngredient(0);
        QVERIFY(o.entry->recipeItem()->items.isEmpty());
        QVERIFY(env->CurrentRecipeItems().isEmpty());
        o.view->appear();
        QVERIFY(env->CurrentRecipeItems().isEmpty());
        QCOMPARE(o.view->totalWeightText(), u"0 g"_s);

        o.view->leave();
        QVERIFY(!env->editRecipeActive());
    }

    void removalOnlyInEditMode()
    {
        const Opened o = opened(Mode::Select, Mode::Edit, {ingredient(1, 10)});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"no ingredient 0"_s));
        o.view->removeIngredient(0);
        QCOMPARE(o.entry->recipeItem()->items.size(), 1);
    }

    // A new meal takes the next id and is appended; a saved one is replaced where it stands.
    void saving()
    {
        saveRecipe(RecipeItem{u"A"_s, 0, {}, 1});
        saveRecipe(RecipeItem{u"B"_s, 1, {}, 1});
        Opened fresh = opened(Mode::New, Mode::Select, {ingredient(2, 40)});
        fresh.view->setRecipeName(u"C"_s);
        fresh.view->saveMeal();
        QCOMPARE(fresh.entry->recipeItem()->id, 2);
        QCOMPARE(fresh.view->actions(), CreateRecipeUIView::AddToCalculator);
        QCOMPARE(fresh.view->headerLinkText(), u"Edit"_s);

        CreateRecipeUIView again;
        QVERIFY(again.openSavedMeal(getRecipes().at(1), Mode::Select, Mode::Edit, u"1"_s));
        again.toggleMode();
        again.setRecipeName(u"B renamed"_s);
        again.saveMeal();
        QStringList names;
        QList<qint64> ids;
        for (const RecipeItem &meal : getRecipes()) {
            names << meal.name;
            ids << meal.id;
        }
        QCOMPARE(names, (QStringList{u"A"_s, u"B renamed"_s, u"C"_s}));
        QCOMPARE(ids, (QList<qint64>{0, 1, 2}));
        QCOMPARE(getRecipes().at(2).items.size(), 1);
    }

    void addToCalculator()
    {
        env->setTrackedNutrientListItems({ingredient(1, 10, 5)});
        const Opened o = opened(Mode::Select, Mode::Edit, {ingredient(1, 40, 10)});
        o.view->appear();
        o.view->setQuantity(u"3"_s);
        o.view->addToCalculator();
        QCOMPARE(env->TrackedNutrientListItems().size(), 2);
        QCOMPARE(env->TrackedNutrientListItems().last(), o.entry);
        QCOMPARE(o.entry->quantity(), 3);
        QVERIFY(env->CurrentRecipeItems().isEmpty());
        QVERIFY(!env->searchActive());
    }

    // The calculator follows its meal line: "Update", and a late change inside an ingredient, show at once.
    void calculatorFollowsTheMealLine()
    {
        CarbCounterUIView calculator;
        const DiaryEntryPtr banana = ingredient(1, 118, 26.9);
        const DiaryEntryPtr line = mealLine({ingredient(2, 40, 9.5), banana}, 4, 1);
        env->setTrackedNutrientListItems({ingredient(1, 10, 5), line});
        QCOMPARE(calculator.totalText(), u"16.5 g"_s); // 5 + round1((19 + 26.9) / 4) = 5 + 11.5

        CreateRecipeUIView view;
        QVERIFY(view.openLine(line.data(), Mode::View));
        view.appear();
        view.toggleMode();
        QCOMPARE(view.actions(), CreateRecipeUIView::Update);
        view.setQuantity(u"3"_s);
        QCOMPARE(view.totalTrackedText(), u"34.5 g"_s);
        QCOMPARE(calculator.totalText(), u"16.5 g"_s); // nothing changes before "Update"
        QSignalSpy closed(&view, &CreateRecipeUIView::closeRequested);
        QSignalSpy lines(env, &EnvironmentVariables::trackedNutrientListItemsChanged);
        view.update();
        QCOMPARE(closed.size(), 1);
        QCOMPARE(lines.size(), 1);
        QCOMPARE(env->TrackedNutrientListItems().at(1), line);
        QCOMPARE(calculator.lines()->index(1).data(CalculatorLinesModel::AmountRole).toString(), u"34.5 g"_s);
        QCOMPARE(calculator.totalText(), u"39.5 g"_s);

        QSignalSpy total(&calculator, &CarbCounterUIView::totalChanged);
        banana->setTrackedNutrient(
            NutrientValue{u"Carbohydrates"_s, u"grams"_s, 22.9, 1}); // 4.75 + 5.725 -> 10.5 a serving
        QVERIFY(total.size() >= 1);
        QCOMPARE(calculator.lines()->index(1).data(CalculatorLinesModel::AmountRole).toString(), u"31.5 g"_s);
        QCOMPARE(calculator.totalText(), u"36.5 g"_s);
        QCOMPARE(view.totalTrackedText(), u"31.5 g"_s);
    }
};

QTEST_GUILESS_MAIN(CreateRecipeTest)
#include "tst_createrecipe.moc"
