#pragma once

#include "FoodItem.h"
#include "Preview.h"

#include <optional>
#include <QList>
#include <QObject>
#include <QtQmlIntegration>
#include <QVariantList>

namespace nutrika {

/// State and operations of the suggestion screen shown over the calculator after a food is added: pick
/// a suggested food, "Continue Adding" or "No Thanks". Every choice ends with `isPresented` false. Its
/// look is FoodAccompanimentsScreen.qml.
class FoodAccompanimentsUIView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The suggested foods (FoodItem values), in the order given.
    Q_PROPERTY(QVariantList items READ itemsVariant WRITE setItemsVariant NOTIFY itemsChanged)
    Q_PROPERTY(bool isPresented READ isPresented WRITE setIsPresented NOTIFY isPresentedChanged)
    /// Any mode but NotPreview shows the sample foods.
    Q_PROPERTY(nutrika::Preview::Value preview READ preview WRITE setPreview NOTIFY itemsChanged)

public:
    using QObject::QObject;

    /// A tap on the suggestion at `index`.
    Q_INVOKABLE void choose(int index);
    Q_INVOKABLE void continueAdding();
    Q_INVOKABLE void noThanks();

    [[nodiscard]] const QList<FoodItem> &items() const { return m_items; }
    void setItems(const QList<FoodItem> &items);
    [[nodiscard]] QVariantList itemsVariant() const;
    void setItemsVariant(const QVariantList &items);
    [[nodiscard]] Preview::Value preview() const { return m_preview; }
    void setPreview(Preview::Value preview);
    [[nodiscard]] bool isPresented() const { return m_isPresented; }
    void setIsPresented(bool presented);

signals:
    void itemsChanged();
    void isPresentedChanged();
    /// The chosen food, or undefined for "No Thanks".
    void select(const QVariant &item);

private:
    QList<FoodItem> m_items;
    bool m_isPresented = true;
    Preview::Value m_preview = Preview::NotPreview;
};

} // namespace nutrika
