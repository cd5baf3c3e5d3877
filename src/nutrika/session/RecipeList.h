#pragma once

#include "RecipeItem.h"

#include <QList>
#include <QObject>
#include <QtQmlIntegration>

namespace nutrika {

/// The saved meals as last loaded by the meal search. Announces changes to its own observers only.
class RecipeList : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Owned by the session")
    Q_PROPERTY(QList<nutrika::RecipeItem> items READ items WRITE setItems NOTIFY itemsChanged)

public:
    using QObject::QObject;

    [[nodiscard]] const QList<RecipeItem> &items() const { return m_items; }
    void setItems(const QList<RecipeItem> &items);

signals:
    void itemsChanged();

private:
    QList<RecipeItem> m_items;
};

} // namespace nutrika
