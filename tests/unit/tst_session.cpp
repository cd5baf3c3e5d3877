#include "EnvironmentVariables.h"
#include "ExampleData.h"

#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>
#include <thread>

using namespace nutrika;
using SessionWrite = std::function<void(EnvironmentVariables *)>;
Q_DECLARE_METATYPE(SessionWrite)

class SessionTest : public QObject
{
    Q_OBJECT

private slots:
    // Runs first, before anything else touches the session.
    void sharedIsCreatedOnceUnderConcurrentFirstUse()
    {
        std::vector<EnvironmentVariables *> seen(8);
        std::vector<std::thread> threads;
        for (size_t i = 0; i < seen.size(); ++i)
            threads.emplace_back([&seen, i] { seen[i] = EnvironmentVariables::shared(); });
        for (std::thread &t : threads)
            t.join();
        for (EnvironmentVariables *s : seen)
            QCOMPARE(s, EnvironmentVariables::shared());
        QCOMPARE(EnvironmentVariables::shared()->thread(), QThread::currentThread());
    }

    void everyWriteIsAnnounced_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<SessionWrite>("write");
        using Write = SessionWrite;
        QTest::newRow("dismissFunction") << QByteArray(SIGNAL(dismissFunctionChanged()))
                                         << Write([](auto *e) { e->setDismissFunction([] {}); });
        QTest::newRow("searchActive")
            << QByteArray(SIGNAL(searchActiveChanged())) << Write([](auto *e) { e->setSearchActive(false); });
        QTest::newRow("recipeSearchActive") << QByteArray(SIGNAL(recipeSearchActiveChanged()))
                                            << Write([](auto *e) { e->setRecipeSearchActive(true); });
        QTest::newRow("portionActive") << QByteArray(SIGNAL(portionActiveChanged()))
                                       << Write([](auto *e) { e->setPortionActive(9040); });
        QTest::newRow("accompanimentsActive") << QByteArray(SIGNAL(accompanimentsActiveChanged()))
                                              << Write([](auto *e) { e->setAccompanimentsActive(true); });
        QTest::newRow("foodItemForAccompaniments")
            << QByteArray(SIGNAL(foodItemForAccompanimentsChanged()))
            << Write([](auto *e) { e->setFoodItemForAccompaniments(example::exampleSelectedFood()); });
        QTest::newRow("editRecipeActive") << QByteArray(SIGNAL(editRecipeActiveChanged()))
                                          << Write([](auto *e) { e->setEditRecipeActive(true); });
        QTest::newRow("recipeList") << QByteArray(SIGNAL(recipeListChanged()))
                                    << Write([](auto *e) { e->setRecipeList(new RecipeList); });
        QTest::newRow("TrackedNutrientListItems")
            << QByteArray(SIGNAL(trackedNutrientListItemsChanged()))
            << Write([](auto *e) { e->setTrackedNutrientListItems(example::exampleCarbList()); });
        QTest::newRow("CurrentRecipeItems") << QByteArray(SIGNAL(currentRecipeItemsChanged()))
                                            << Write([](auto *e) { e->setCurrentRecipeItems({}); });
    }

    void everyWriteIsAnnounced()
    {
        QFETCH(QByteArray, signal);
        QFETCH(SessionWrite, write);
        EnvironmentVariables *env = EnvironmentVariables::shared();
        QSignalSpy spy(env, signal.constData());
        write(env);
        write(env); // the same value again is announced again
        QCOMPARE(spy.size(), 2);
    }

    void leavingIngredientModeDiscardsTheIngredients()
    {
        EnvironmentVariables *env = EnvironmentVariables::shared();
        env->setCurrentRecipeItems(example::exampleCarbList());
        env->setEditRecipeActive(true);
        QCOMPARE(env->CurrentRecipeItems().size(), 2);

        env->setEditRecipeActive(false);
        QVERIFY(env->CurrentRecipeItems().isEmpty());

        env->setCurrentRecipeItems(example::exampleCarbList());
        QSignalSpy cleared(env, &EnvironmentVariables::currentRecipeItemsChanged);
        env->setEditRecipeActive(false);
        QVERIFY(env->CurrentRecipeItems().isEmpty());
        QCOMPARE(cleared.size(), 1);
    }

    void recipeListChangesStayWithTheList()
    {
        EnvironmentVariables *env = EnvironmentVariables::shared();
        QSignalSpy sessionSpy(env, &EnvironmentVariables::recipeListChanged);
        QSignalSpy listSpy(env->recipeList(), &RecipeList::itemsChanged);
        env->recipeList()->setItems({example::exampleRecipe()});
        QCOMPARE(listSpy.size(), 1);
        QCOMPARE(sessionSpy.size(), 0);
    }
};

QTEST_GUILESS_MAIN(SessionTest)
#include "tst_session.moc"
