#include "CarbCounterUIView.h"
#include "CreateRecipeUIView.h"
#include "EnvironmentVariables.h"
#include "RecipeStore.h"
#include "SearchContainerUIView.h"
#include "StoreFixture.h"

#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

using Mode = CreateRecipeUIView::Mode;

namespace {

// A food ingredient: `quantity` portions of `grams` g, each with `carbs` g of carbohydrates.
DiaryEntryPtr ingredient(qint64 quantity, qint64 grams, double carbs = 0)
{
    PortionItem portion = basePortionItem();
    portion.size = grams;
    const NutrientValue tracked{u"Carbohydrates"_s, u"grams"_s, carbs, 1};
    return DiaryEntryPtr::create(123, portion, FoodItem{u"Oats"_s, 1, 1, QString(), false}, quantity,
                                 QList{tracked}, tracked);
}

DiaryEntryPtr mealLine(const QList<DiaryEntryPtr> &items, qint64 servings = 1)
{
    return DiaryEntryPtr::create(123, RecipeItem{u"Soup"_s, -1, items, servings}, 1);
}

std::unique_ptr<CreateRecipeUIView> opened(Mode mode, Mode lastMode, const QList<DiaryEntryPtr> &items = {},
                                           qint64 servings = 1)
{
    auto view = std::make_unique<CreateRecipeUIView>();
    if (!view->open(mealLine(items, servings), mode, lastMode, u"1"_s))
        qFatal("a meal line was refused");
    return view;
}

// The screen in one line: its mode after the one before, the header link and the actions.
QString shown(const CreateRecipeUIView &view)
{
    return CreateRecipeUIView::rawValue(view.mode()) + u" after "_s +
           CreateRecipeUIView::rawValue(view.lastMode()) + u", link '"_s + view.headerLinkText() + u"', "_s +
           QLatin1String(QMetaEnum::fromType<CreateRecipeUIView::Actions>().valueToKey(view.actions()));
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

    // Each write of the mode keeps the one before and the header link goes back to it; "Save Meal" leaves
    // a new meal in select with edit behind it, anything else in the mode before.
    void modes_data()
    {
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<Mode>("lastMode");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("shown");
        const QString listed = u"Select after Edit, link 'Edit', AddToCalculator"_s;
        QTest::newRow("new: the link does nothing")
            << Mode::New << Mode::Select << u"link"_s << u"New after Select, link '', Compose"_s;
        QTest::newRow("new: save") << Mode::New << Mode::Select << u"save"_s << listed;
        QTest::newRow("list: edit") << Mode::Select << Mode::Edit << u"link"_s
                                    << u"Edit after Select, link 'Cancel', Compose"_s;
        QTest::newRow("list: edit, cancel") << Mode::Select << Mode::Edit << u"link link"_s << listed;
        QTest::newRow("list: edit, save") << Mode::Select << Mode::Edit << u"link save"_s << listed;
        QTest::newRow("calculator: edit")
            << Mode::View << Mode::Select << u"link"_s << u"Select after View, link 'Edit', Update"_s;
        QTest::newRow("calculator: edit, edit")
            << Mode::View << Mode::Select << u"link link"_s << u"View after Select, link 'Edit', NoActions"_s;
    }

    void modes()
    {
        QFETCH(Mode, mode);
        QFETCH(Mode, lastMode);
        QFETCH(QString, steps);
        const auto view = opened(mode, lastMode, {ingredient(1, 10)});
        for (const QString &step : steps.split(u' ', Qt::SkipEmptyParts))
            step == u"link" ? view->toggleMode() : view->saveMeal();
        QTEST(shown(*view), "shown");
    }

    // What the editor refuses leaves a warning and the meal it had as it was.
    void refusals_data()
    {
        QTest::addColumn<QString>("opening"); // a line handed over by the calculator; none for a removal
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("warning");
        QTest::newRow("food line") << u"food"_s << Mode::View << 0 << CreateRecipeUIView::foodRefusal;
        QTest::newRow("line not in the calculator")
            << u"other meal"_s << Mode::View << 0 << u"diaryEntry is not a line of the calculator"_s;
        QTest::newRow("removal outside edit mode")
            << QString() << Mode::Select << 0 << u"no ingredient 0 to remove"_s;
        QTest::newRow("removal past the end")
            << QString() << Mode::Edit << 1 << u"no ingredient 1 to remove"_s;
    }

    void refusals()
    {
        QFETCH(QString, opening);
        QFETCH(Mode, mode);
        QFETCH(int, index);
        QFETCH(QString, warning);
        const DiaryEntryPtr food = ingredient(2, 40);
        env->setTrackedNutrientListItems({food});
        const auto view = opened(mode, Mode::Edit, {food});
        const DiaryEntryPtr meal = view->diaryEntry();
        QTest::ignoreMessage(QtWarningMsg, qPrintable(u"CreateRecipeUIView: "_s + warning));
        if (opening.isEmpty()) {
            view->removeIngredient(index);
        } else {
            QVERIFY(!view->openLine((opening == u"food" ? food : mealLine({food})).data(), mode));
            QCOMPARE(view->error(), warning);
        }
        QCOMPARE(view->diaryEntry(), meal);
        QCOMPARE(meal->recipeItem()->items, QList{food});
    }

    // The total weight, one serving's weight and its carbohydrates, then each ingredient row.
    void totals_data()
    {
        QTest::addColumn<QList<DiaryEntryPtr>>("items");
        QTest::addColumn<qint64>("servings");
        QTest::addColumn<QString>("shown");
        QTest::newRow("no ingredients") << QList<DiaryEntryPtr>{} << qint64(1) << u"0 g, 0 g, 0.0 g"_s;
        // A serving holds (20 + 5) / 4 = 6.25 g of carbohydrates: a half, rounded away from zero.
        QTest::newRow("150 g and 45 g in 4")
            << QList{ingredient(1, 150, 20), ingredient(1, 45, 5)} << qint64(4)
            << u"195 g, 49 g, 6.3 g | Oats\n(1 X 150.0 g) 150 g | Oats\n(1 X 45.0 g) 45 g"_s;
        // The line itself holds 3 x 4.25 = 12.75 g.
        QTest::newRow("three 40 g portions") << QList{ingredient(3, 40, 4.25)} << qint64(1)
                                             << u"120 g, 120 g, 12.8 g | Oats\n(3 X 40.0 g) 120 g"_s;
        QTest::newRow("half a gram rounds up")
            << QList{ingredient(1, 10)} << qint64(4) << u"10 g, 3 g, 0.0 g | Oats\n(1 X 10.0 g) 10 g"_s;
        // A meal inside a meal counts its servings' share: 300 g and 15 g in 2 servings, taken once.
        QTest::newRow("meal inside")
            << QList{mealLine({ingredient(3, 100, 5)}, 2), ingredient(1, 50, 3)} << qint64(3)
            << u"200 g, 67 g, 3.5 g | Soup\n(1 X 150.0 g) 150 g | Oats\n(1 X 50.0 g) 50 g"_s;
    }

    void totals()
    {
        QFETCH(QList<DiaryEntryPtr>, items);
        QFETCH(qint64, servings);
        const auto view = opened(Mode::Edit, Mode::Select, items, servings);
        QStringList shown{view->totalWeightText() + u", "_s + view->onePortionText() + u", "_s +
                          view->totalTrackedText()};
        for (const QVariant &row : view->ingredients())
            shown << row.toMap().value(u"label"_s).toString() + u' ' +
                         row.toMap().value(u"weight"_s).toString();
        QTEST(shown.join(u" | "_s), "shown");
    }

    // Ingredients flow through the session's working list: copied out when shown, back in after the search
    // added to it, emptied by a save; an addition after a save joins the saved ones. A new meal takes the
    // next id and is appended; saved again, it is replaced where it stands.
    void workingListAndSaving()
    {
        saveRecipe(RecipeItem{u"A"_s, 0, {}, 1});
        saveRecipe(RecipeItem{u"B"_s, 1, {}, 1});
        env->setCurrentRecipeItems({ingredient(9, 9)}); // left by another meal
        CreateRecipeUIView view;
        QVERIFY(view.openNewMeal(Mode::New, Mode::Select, u"1"_s));
        view.appear();
        QVERIFY(env->editRecipeActive());
        QVERIFY(env->CurrentRecipeItems().isEmpty());
        const DiaryEntryPtr oats = ingredient(1, 150), banana = ingredient(1, 45), milk = ingredient(1, 200);
        env->setCurrentRecipeItems({oats, banana}); // the ingredient search's "Add to meal"
        view.appear();
        view.setRecipeName(u"C"_s);
        view.setServings(4);
        view.saveMeal();
        QVERIFY(env->CurrentRecipeItems().isEmpty());

        view.toggleMode();
        view.addIngredients();
        QVERIFY(env->recipeSearchActive());
        env->setCurrentRecipeItems(QList(env->CurrentRecipeItems()) << milk);
        env->setRecipeSearchActive(false);
        view.appear();
        view.removeIngredient(0);
        QCOMPARE(view.diaryEntry()->recipeItem()->items, (QList{banana, milk}));
        QCOMPARE(env->CurrentRecipeItems(), (QList{banana, milk}));
        // Back on the search screen, the ingredient search ends and its working list goes.
        SearchContainerUIView().contentAppeared();
        QVERIFY(!env->editRecipeActive());
        QVERIFY(env->CurrentRecipeItems().isEmpty());
        view.saveMeal();

        QStringList stored;
        for (const RecipeItem &meal : getRecipes())
            stored << u"%1:%2 x%3 %4"_s.arg(meal.id).arg(meal.name).arg(meal.servings).arg(meal.items.size());
        QCOMPARE(stored, (QStringList{u"0:A x1 0"_s, u"1:B x1 0"_s, u"2:C x4 2"_s}));
    }

    // "Add to calculator" adds the meal line, "Update" reports its new quantity, and a later change inside an
    // ingredient reaches the calculator's total at once.
    void calculatorFollowsTheMealLine()
    {
        CarbCounterUIView calculator;
        env->setTrackedNutrientListItems({ingredient(1, 10, 5)});
        const DiaryEntryPtr banana = ingredient(1, 118, 26.9);
        const auto fromList = opened(Mode::Select, Mode::Edit, {ingredient(2, 40, 9.5), banana}, 4);
        fromList->appear();
        fromList->setQuantity(u"2"_s);
        fromList->addToCalculator();
        fromList->addToCalculator(); // a second tap while the screen slides away
        QCOMPARE(env->TrackedNutrientListItems().size(), 2);
        QCOMPARE(env->TrackedNutrientListItems().last(), fromList->diaryEntry());
        QVERIFY(env->CurrentRecipeItems().isEmpty());
        QVERIFY(!env->searchActive());
        QCOMPARE(calculator.totalText(), u"28 g"_s); // 5 + 2 x round1((19 + 26.9) / 4)

        CreateRecipeUIView view;
        QVERIFY(view.openLine(fromList->diaryEntry().data(), Mode::View));
        QCOMPARE(view.quantity(), u"2"_s);
        view.toggleMode();
        QCOMPARE(view.actions(), CreateRecipeUIView::Update);
        view.setQuantity(u"3"_s);
        QCOMPARE(view.totalTrackedText(), u"34.5 g"_s);
        QCOMPARE(calculator.totalText(), u"28 g"_s); // nothing changes before "Update"
        QSignalSpy lines(env, &EnvironmentVariables::trackedNutrientListItemsChanged);
        view.update();
        QCOMPARE(lines.size(), 1);
        QCOMPARE(calculator.totalText(), u"39.5 g"_s);

        // The calculator computes on demand, so only the signal tells the screen to show the change.
        QSignalSpy total(&calculator, &CarbCounterUIView::totalChanged);
        banana->setTrackedNutrient(NutrientValue{u"Carbohydrates"_s, u"grams"_s, 22.9, 1}); // 10.5 a serving
        QVERIFY(!total.isEmpty());
        QCOMPARE(calculator.totalText(), u"36.5 g"_s);
    }
};

QTEST_GUILESS_MAIN(CreateRecipeTest)
#include "tst_createrecipe.moc"
