#pragma once

#include "FoodItem.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace nutrika {

/// The food search results as one list for the view, in two sections: "Non-Branded" foods, then "Branded"
/// ones. An empty section holds one placeholder row, so the view still shows its header.
class SearchResultsModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Owned by ItemSearchUIView")

public:
    enum Role
    {
        IsPlaceholderRole = Qt::UserRole + 1,
        SectionRole,
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

    [[nodiscard]] const QList<FoodItem> &nonBranded() const { return m_nonBranded.foods; }
    [[nodiscard]] const QList<FoodItem> &branded() const { return m_branded.foods; }
    /// The food at a row of the view, or nullptr on a placeholder.
    [[nodiscard]] const FoodItem *foodAt(int row) const;

    void clear();
    void append(const QList<FoodItem> &nonBranded, const QList<FoodItem> &branded);

private:
    struct Section
    {
        QList<FoodItem> foods;
        // Shown after the foods while there are none.
        bool placeholder = true;
        [[nodiscard]] int rows() const { return int(foods.size()) + (placeholder ? 1 : 0); }
    };

    [[nodiscard]] int brandedFirstRow() const { return m_nonBranded.rows(); }
    void appendTo(Section &section, int firstRow, const QList<FoodItem> &foods);

    Section m_nonBranded;
    Section m_branded;
};

} // namespace nutrika
