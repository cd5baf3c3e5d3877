#pragma once

#include <QObject>
#include <QtQmlIntegration>

class QQuickItem;

namespace nutrika {

/// The order in which a screen reader meets items: it reads the children of an item in their stacking
/// order, which for a view is the order they were built in, not the order they are shown in.
class ReadingOrder : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Moves `item` after all of its siblings, so that it is read last.
    Q_INVOKABLE static void readLast(QQuickItem *item);
};

} // namespace nutrika
