#include "RecipeSearchUIView.h"

#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "RecipeStore.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

RecipeSearchUIView::RecipeSearchUIView(QObject *parent) : QObject(parent)
{
    EnvironmentVariables *env = EnvironmentVariables::shared();
    const auto watchList = [this, env] {
        connect(env->recipeList(), &RecipeList::itemsChanged, this, &RecipeSearchUIView::mealsChanged);
        emit mealsChanged();
    };
    connect(env, &EnvironmentVariables::recipeListChanged, this, watchList);
    connect(env->recipeList(), &RecipeList::itemsChanged, this, &RecipeSearchUIView::mealsChanged);
    connect(this, &RecipeSearchUIView::debouncedTextChanged, this, &RecipeSearchUIView::mealsChanged);
}

void RecipeSearchUIView::appear()
{
    const QList<RecipeItem> meals =
        m_preview == Preview::Main ? QList<RecipeItem>(10, example::exampleRecipe()) : getRecipes();
    EnvironmentVariables::shared()->recipeList()->setItems(meals);
    ++m_counter;
    emit counterChanged();
}

void RecipeSearchUIView::onFinishTyping(const QString &text)
{
    m_debouncedText = text;
    emit debouncedTextChanged();
}

DiaryEntryPtr RecipeSearchUIView::newMealEntry()
{
    return DiaryEntryPtr::create(
        123, RecipeItem{QCoreApplication::translate("nutrika::CreateRecipeUIView", "New Meal"), -1, {}, 1},
        1);
}

DiaryEntryPtr RecipeSearchUIView::savedMealEntry(const RecipeItem &meal)
{
    return DiaryEntryPtr::create(123, meal, 1);
}

bool RecipeSearchUIView::noSavedMeals() const
{
    return EnvironmentVariables::shared()->recipeList()->items().isEmpty();
}

QList<RecipeItem> RecipeSearchUIView::filteredMeals() const
{
    QList<RecipeItem> listed;
    for (const RecipeItem &meal : EnvironmentVariables::shared()->recipeList()->items()) {
        if (meal.name.contains(m_debouncedText, Qt::CaseSensitive))
            listed.append(meal);
    }
    return listed;
}

QVariantList RecipeSearchUIView::meals() const
{
    QVariantList values;
    for (const RecipeItem &meal : filteredMeals())
        values.append(QVariant::fromValue(meal));
    return values;
}

void RecipeSearchUIView::setPreview(Preview::Value preview)
{
    m_preview = preview;
    emit previewChanged();
}

} // namespace nutrika
