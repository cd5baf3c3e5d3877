#pragma once

#include "FoodItem.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace nutrika {

/// The food search results as one list for the view: the "Non-Branded" header and its foods, then the
/// "Branded" header and its foods. Both headers are always there, also over an empty section.
class SearchResultsModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Owned by ItemSearchUIView")

public:
    enum Role
    {
        IsHeaderRole = Qt::UserRole + 1,
        TitleRole,
        BrandRole,
        FoodIdRole,
        BrandedRole,
        IndexInSectionRole
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const QList<FoodItem> &nonBranded() const { return m_nonBranded; }
    [[nodiscard]] const QList<FoodItem> &branded() const { return m_branded; }
    /// The food at a row of the view, or nullptr on a header.
    [[nodiscard]] const FoodItem *foodAt(int row) const;

    void clear();
    void append(const QList<FoodItem> &nonBranded, const QList<FoodItem> &branded);

private:
    [[nodiscard]] int brandedHeaderRow() const { return int(m_nonBranded.size()) + 1; }

    QList<FoodItem> m_nonBranded;
    QList<FoodItem> m_branded;
};

} // namespace nutrika
