#pragma once

#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "Preferences.h"
#include "RecipeStore.h"

#include <QObject>
#include <QtQmlIntegration>

/// Lets the QML tests reset the session, read the saved meals and find the screenshot folder.
class SessionProbe : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString screenshotDir READ screenshotDir CONSTANT)

public:
    [[nodiscard]] QString screenshotDir() const { return qEnvironmentVariable("NUTRIKA_SCREENSHOT_DIR"); }

    /// As in a fresh process: an empty calculator, every flag down, no saved meals and no recent foods.
    Q_INVOKABLE void reset()
    {
        nutrika::EnvironmentVariables *env = nutrika::EnvironmentVariables::shared();
        env->setTrackedNutrientListItems({});
        env->setSearchActive(false);
        env->setPortionActive(-1);
        env->setAccompanimentsActive(false);
        env->setFoodItemForAccompaniments(std::nullopt);
        env->setEditRecipeActive(false);
        nutrika::Preferences preferences;
        preferences.remove(QStringLiteral("recipes"));
        preferences.remove(QStringLiteral("recentFoods"));
        preferences.sync();
    }

    Q_INVOKABLE void addExampleLines()
    {
        nutrika::EnvironmentVariables::shared()->setTrackedNutrientListItems(
            {nutrika::example::exampleTrackedNutrient1(), nutrika::example::exampleDiaryRecipeItem2()});
    }

    /// The meals as stored (recipeItem values), read past the screens.
    Q_INVOKABLE QVariantList savedMeals() const
    {
        QVariantList meals;
        for (const nutrika::RecipeItem &meal : nutrika::getRecipes())
            meals.append(QVariant::fromValue(meal));
        return meals;
    }
};
