#include "SearchResultsModel.h"

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

int SearchResultsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_nonBranded.size() + m_branded.size()) + 2;
}

const FoodItem *SearchResultsModel::foodAt(int row) const
{
    if (row > 0 && row < brandedHeaderRow())
        return &m_nonBranded.at(row - 1);
    if (row > brandedHeaderRow() && row < rowCount())
        return &m_branded.at(row - brandedHeaderRow() - 1);
    return nullptr;
}

QVariant SearchResultsModel::data(const QModelIndex &index, int role) const
{
    const int row = index.row();
    const bool inBranded = row >= brandedHeaderRow();
    const FoodItem *food = foodAt(row);
    switch (role) {
    case IsHeaderRole:
        return food == nullptr;
    case TitleRole:
        if (food)
            return food->description;
        return inBranded ? u"Branded"_s : u"Non-Branded"_s;
    case BrandRole:
        return food ? food->brand : QString();
    case FoodIdRole:
        return food ? food->id : qint64(-1);
    case BrandedRole:
        return inBranded;
    case IndexInSectionRole:
        return inBranded ? row - brandedHeaderRow() - 1 : row - 1;
    default:
        return {};
    }
}

QHash<int, QByteArray> SearchResultsModel::roleNames() const
{
    return {{IsHeaderRole, "isHeader"}, {TitleRole, "title"},     {BrandRole, "brand"},
            {FoodIdRole, "foodId"},     {BrandedRole, "branded"}, {IndexInSectionRole, "indexInSection"}};
}

void SearchResultsModel::clear()
{
    if (m_nonBranded.isEmpty() && m_branded.isEmpty())
        return;
    beginResetModel();
    m_nonBranded.clear();
    m_branded.clear();
    endResetModel();
}

void SearchResultsModel::append(const QList<FoodItem> &nonBranded, const QList<FoodItem> &branded)
{
    if (!nonBranded.isEmpty()) {
        const int first = brandedHeaderRow();
        beginInsertRows({}, first, first + int(nonBranded.size()) - 1);
        m_nonBranded.append(nonBranded);
        endInsertRows();
    }
    if (!branded.isEmpty()) {
        const int first = rowCount();
        beginInsertRows({}, first, first + int(branded.size()) - 1);
        m_branded.append(branded);
        endInsertRows();
    }
}

} // namespace nutrika
