#pragma once

#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "Preferences.h"
#include "RecipeStore.h"

#include <QObject>
#include <QtQmlIntegration>

/// Lets the QML tests reset the session, count "Close" actions, read and clear the saved meals and find
/// the screenshot folder.
class SessionProbe : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int dismissCount READ dismissCount NOTIFY dismissCountChanged)
    Q_PROPERTY(QString screenshotDir READ screenshotDir CONSTANT)

public:
    [[nodiscard]] int dismissCount() const { return m_dismissCount; }
    [[nodiscard]] QString screenshotDir() const { return qEnvironmentVariable("NUTRIKA_SCREENSHOT_DIR"); }

    /// Empties the calculator, clears the flags and makes "Close" count instead of act.
    Q_INVOKABLE void reset()
    {
        nutrika::EnvironmentVariables *env = nutrika::EnvironmentVariables::shared();
        env->setTrackedNutrientListItems({});
        env->setSearchActive(false);
        env->setAccompanimentsActive(false);
        m_dismissCount = 0;
        emit dismissCountChanged();
        env->setDismissFunction([this] {
            ++m_dismissCount;
            emit dismissCountChanged();
        });
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

    Q_INVOKABLE void forgetSavedMeals()
    {
        nutrika::Preferences preferences;
        preferences.remove(QStringLiteral("recipes"));
        preferences.sync();
    }

signals:
    void dismissCountChanged();

private:
    int m_dismissCount = 0;
};
