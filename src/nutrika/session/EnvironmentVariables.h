#pragma once

#include "DiaryEntry.h"
#include "FoodItem.h"
#include "RecipeList.h"
#include "ServiceClient.h"

#include <functional>
#include <optional>
#include <QObject>
#include <QtQmlIntegration>

class QQmlEngine;
class QJSEngine;

namespace nutrika {

/// The one session shared by every screen: the calculator's lines, the meal being composed, the saved
/// meals, the "Close" action and the flags that decide which screen is pushed. Every write is announced,
/// even when the value does not change, because navigation reacts to writes.
class EnvironmentVariables : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool searchActive READ searchActive WRITE setSearchActive NOTIFY searchActiveChanged)
    Q_PROPERTY(bool recipeSearchActive READ recipeSearchActive WRITE setRecipeSearchActive NOTIFY
                   recipeSearchActiveChanged)
    Q_PROPERTY(qint64 portionActive READ portionActive WRITE setPortionActive NOTIFY portionActiveChanged)
    Q_PROPERTY(bool accompanimentsActive READ accompanimentsActive WRITE setAccompanimentsActive NOTIFY
                   accompanimentsActiveChanged)
    Q_PROPERTY(
        bool editRecipeActive READ editRecipeActive WRITE setEditRecipeActive NOTIFY editRecipeActiveChanged)
    Q_PROPERTY(nutrika::RecipeList *recipeList READ recipeList NOTIFY recipeListChanged)
    /// The one client of the food-data service; screens pass it to every request.
    Q_PROPERTY(nutrika::ServiceClient *serviceClient READ serviceClient CONSTANT)

public:
    /// The process-wide session, created on first use (safely, even if first use races) and never destroyed.
    [[nodiscard]] static EnvironmentVariables *shared();
    /// QML gets the same instance.
    static EnvironmentVariables *create(QQmlEngine *, QJSEngine *);

    [[nodiscard]] const std::function<void()> &dismissFunction() const { return m_dismissFunction; }
    void setDismissFunction(std::function<void()> dismiss);
    /// Runs the "Close" action.
    Q_INVOKABLE void dismiss() const;

    [[nodiscard]] bool searchActive() const { return m_searchActive; }
    void setSearchActive(bool active);
    [[nodiscard]] bool recipeSearchActive() const { return m_recipeSearchActive; }
    void setRecipeSearchActive(bool active);
    [[nodiscard]] qint64 portionActive() const { return m_portionActive; }
    void setPortionActive(qint64 foodId);
    [[nodiscard]] bool accompanimentsActive() const { return m_accompanimentsActive; }
    void setAccompanimentsActive(bool active);
    [[nodiscard]] const std::optional<FoodItem> &foodItemForAccompaniments() const
    {
        return m_foodItemForAccompaniments;
    }
    void setFoodItemForAccompaniments(const std::optional<FoodItem> &food);
    [[nodiscard]] bool editRecipeActive() const { return m_editRecipeActive; }
    /// Leaving ingredient mode (false) always discards the ingredient list, even if already false.
    void setEditRecipeActive(bool active);

    [[nodiscard]] ServiceClient *serviceClient() const { return m_serviceClient; }

    [[nodiscard]] RecipeList *recipeList() const { return m_recipeList; }
    /// Replaces the saved-meal list; the session takes ownership.
    void setRecipeList(RecipeList *list);

    [[nodiscard]] const QList<DiaryEntryPtr> &TrackedNutrientListItems() const
    {
        return m_trackedNutrientListItems;
    }
    void setTrackedNutrientListItems(const QList<DiaryEntryPtr> &lines);
    [[nodiscard]] const QList<DiaryEntryPtr> &CurrentRecipeItems() const { return m_currentRecipeItems; }
    void setCurrentRecipeItems(const QList<DiaryEntryPtr> &lines);

signals:
    void dismissFunctionChanged();
    void searchActiveChanged();
    void recipeSearchActiveChanged();
    void portionActiveChanged();
    void accompanimentsActiveChanged();
    void foodItemForAccompanimentsChanged();
    void editRecipeActiveChanged();
    void recipeListChanged();
    void trackedNutrientListItemsChanged();
    void currentRecipeItemsChanged();

private:
    EnvironmentVariables();

    std::function<void()> m_dismissFunction = [] {};
    bool m_searchActive = false;
    bool m_recipeSearchActive = false;
    qint64 m_portionActive = -1;
    bool m_accompanimentsActive = false;
    std::optional<FoodItem> m_foodItemForAccompaniments;
    bool m_editRecipeActive = false;
    ServiceClient *m_serviceClient;
    RecipeList *m_recipeList;
    QList<DiaryEntryPtr> m_trackedNutrientListItems;
    QList<DiaryEntryPtr> m_currentRecipeItems;
};

} // namespace nutrika
