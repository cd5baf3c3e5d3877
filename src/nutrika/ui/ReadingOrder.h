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

    /// Restacks the children of `container` from top to bottom, left to right as they are placed, so
    /// that they are read in the order they are seen. Their painting is unchanged where they do not overlap.
    Q_INVOKABLE static void readTopToBottom(QQuickItem *container);
};

} // namespace nutrika
