#pragma once

#include <QObject>
#include <QtQmlIntegration>
#include <QUrl>

class QQmlEngine;
class QJSEngine;

namespace nutrika {

/// The screens a navigation link can push: a closed list, so a link names a destination the compiler
/// knows. Each screen's look is a QML file of the module.
class Destinations : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    enum Screen
    {
        SearchContainer,
        SelectPortion,
        AddToCalcPreview,
        CreateRecipe,
        /// The food search framed as "Search Ingredients", over the meal editor.
        IngredientSearch
    };
    Q_ENUM(Screen)

    using QObject::QObject;
    static Destinations *create(QQmlEngine *, QJSEngine *);

    /// The resource path of the screen's look.
    [[nodiscard]] static QString path(Screen screen);
    /// The QML file of `screen`; warns and returns an empty URL for a value outside the list or a
    /// screen whose look the module lacks. Takes an int because QML hands over any number.
    [[nodiscard]] Q_INVOKABLE static QUrl screen(int screen);
};

} // namespace nutrika
