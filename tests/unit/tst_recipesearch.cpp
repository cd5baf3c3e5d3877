#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "RecipeSearchUIView.h"
#include "RecipeStore.h"
#include "SearchContainerUIView.h"
#include "StoreFixture.h"

#include <QSignalSpy>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

class RecipeSearchTest : public QObject
{
    Q_OBJECT
    StoreFixture m_store;

    static QStringList listedNames(const RecipeSearchUIView &view)
    {
        QStringList names;
        for (const RecipeItem &meal : view.filteredMeals())
            names << meal.name;
        return names;
    }

private slots:
    void initTestCase()
    {
        StoreFixture::clear();
        for (const QString &name :
             {u"Chicken Curry"_s, u"Rice with chicken"_s, u"Pancakes"_s, u"Curry Chicken Wrap"_s})
            saveRecipe(RecipeItem{name, getRecipes().size(), {}, 1});
    }

    void appearingReloadsTheStoreAndRaisesTheCounter()
    {
        RecipeSearchUIView view;
        QSignalSpy listChanged(EnvironmentVariables::shared()->recipeList(), &RecipeList::itemsChanged);
        view.appear();
        QCOMPARE(view.counter(), 1);
        QCOMPARE(EnvironmentVariables::shared()->recipeList()->items().size(), 4);
        QCOMPARE(listChanged.size(), 1);

        saveRecipe(RecipeItem{u"Porridge"_s, 4, {}, 1});
        view.appear();
        QCOMPARE(view.counter(), 2);
        QCOMPARE(view.meals().size(), 5);
    }

    void filterIsACaseSensitiveSubstring_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("listed");
        QTest::newRow("empty lists all")
            << QString()
            << QStringList{u"Chicken Curry"_s, u"Rice with chicken"_s, u"Pancakes"_s, u"Curry Chicken Wrap"_s,
                           u"Porridge"_s};
        QTest::newRow("capitalised word")
            << u"Chicken"_s << QStringList{u"Chicken Curry"_s, u"Curry Chicken Wrap"_s};
        QTest::newRow("lower-case word") << u"chicken"_s << QStringList{u"Rice with chicken"_s};
        QTest::newRow("inside a word") << u"cake"_s << QStringList{u"Pancakes"_s};
        QTest::newRow("no match") << u"Soup"_s << QStringList();
    }

    void filterIsACaseSensitiveSubstring()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, listed);
        RecipeSearchUIView view;
        view.appear();
        view.onFinishTyping(text);
        QCOMPARE(listedNames(view), listed);
    }

    void previewListsTheSampleMealTenTimes()
    {
        RecipeSearchUIView view;
        view.setPreview(Preview::Main);
        view.appear();
        QCOMPARE(view.meals().size(), 10);
        QCOMPARE(listedNames(view).first(), u"Cheeseburger"_s);
    }

    void containerContentLeavesIngredientMode()
    {
        EnvironmentVariables *env = EnvironmentVariables::shared();
        env->setEditRecipeActive(true);
        env->setCurrentRecipeItems(example::exampleCarbList());
        SearchContainerUIView container;
        QSignalSpy appeared(&container, &SearchContainerUIView::appeared);
        container.contentAppeared();
        QVERIFY(!env->editRecipeActive());
        QVERIFY(env->CurrentRecipeItems().isEmpty());
        QCOMPARE(appeared.size(), 1);
        QCOMPARE(container.options(), (QStringList{u"Search"_s, u"Meals"_s}));
    }
};

QTEST_GUILESS_MAIN(RecipeSearchTest)
#include "tst_recipesearch.moc"
