#pragma once

#include <QObject>
#include <QUrl>
#include <QtQmlIntegration>

class QQmlEngine;
class QJSEngine;

namespace nutrika {

/// Finds the look of a screen by its type name: `FooUIView` is drawn by screens/FooScreen.qml.
/// A screen whose look is not part of the module yet has no destination, and its link pushes nothing.
class Destinations : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;
    static Destinations *create(QQmlEngine *, QJSEngine *);

    /// The QML file of the screen type `typeName`, or an empty URL.
    [[nodiscard]] Q_INVOKABLE static QUrl screen(const QString &typeName);
};

} // namespace nutrika
