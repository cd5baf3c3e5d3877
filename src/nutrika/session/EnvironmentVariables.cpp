#include "EnvironmentVariables.h"

#include "ItemTeardown.h"

#include <QCoreApplication>
#include <QJSEngine>
#include <QThread>

namespace nutrika {

EnvironmentVariables::EnvironmentVariables()
    : m_serviceClient(new ServiceClient(this)), m_recipeList(new RecipeList(this))
{
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
    // Whatever thread wins the first use, the session lives on the interface thread.
    if (const QCoreApplication *app = QCoreApplication::instance(); app && thread() != app->thread())
        moveToThread(app->thread());
}

EnvironmentVariables *EnvironmentVariables::shared()
{
    // A function-local static is initialised exactly once, even under concurrent first use.
    static EnvironmentVariables *const instance = new EnvironmentVariables;
    return instance;
}

EnvironmentVariables *EnvironmentVariables::create(QQmlEngine *, QJSEngine *)
{
    // Every host's QML reaches the session first: the module's items are torn down safely from then on.
    guardItemTeardown();
    return shared();
}

void EnvironmentVariables::setDismissFunction(std::function<void()> dismiss)
{
    m_dismissFunction = std::move(dismiss);
    emit dismissFunctionChanged();
}

void EnvironmentVariables::dismiss() const
{
    m_dismissFunction();
}

void EnvironmentVariables::setSearchActive(bool active)
{
    m_searchActive = active;
    emit searchActiveChanged();
}

void EnvironmentVariables::setRecipeSearchActive(bool active)
{
    m_recipeSearchActive = active;
    emit recipeSearchActiveChanged();
}

void EnvironmentVariables::setPortionActive(qint64 foodId)
{
    m_portionActive = foodId;
    emit portionActiveChanged();
}

void EnvironmentVariables::setAccompanimentsActive(bool active)
{
    m_accompanimentsActive = active;
    emit accompanimentsActiveChanged();
}

void EnvironmentVariables::setFoodItemForAccompaniments(const std::optional<FoodItem> &food)
{
    m_foodItemForAccompaniments = food;
    emit foodItemForAccompanimentsChanged();
}

void EnvironmentVariables::setEditRecipeActive(bool active)
{
    m_editRecipeActive = active;
    emit editRecipeActiveChanged();
    // Read back: an observer may have written the flag again while being told of the change.
    if (!m_editRecipeActive)
        setCurrentRecipeItems({});
}

void EnvironmentVariables::setRecipeList(RecipeList *list)
{
    if (list == m_recipeList)
        return;
    list->setParent(this);
    RecipeList *old = std::exchange(m_recipeList, list);
    emit recipeListChanged();
    old->deleteLater();
}

void EnvironmentVariables::setTrackedNutrientListItems(const QList<DiaryEntryPtr> &lines)
{
    m_trackedNutrientListItems = lines;
    emit trackedNutrientListItemsChanged();
}

void EnvironmentVariables::setCurrentRecipeItems(const QList<DiaryEntryPtr> &lines)
{
    m_currentRecipeItems = lines;
    emit currentRecipeItemsChanged();
}

} // namespace nutrika
