#include "SearchResultsModel.h"

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

int SearchResultsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_nonBranded.rows() + m_branded.rows();
}

const FoodItem *SearchResultsModel::foodAt(int row) const
{
    if (row < 0)
        return nullptr;
    const bool inBranded = row >= brandedFirstRow();
    const QList<FoodItem> &foods = inBranded ? m_branded.foods : m_nonBranded.foods;
    const int indexInSection = inBranded ? row - brandedFirstRow() : row;
    return indexInSection < foods.size() ? &foods.at(indexInSection) : nullptr;
}

QVariant SearchResultsModel::data(const QModelIndex &index, int role) const
{
    const int row = index.row();
    const bool inBranded = row >= brandedFirstRow();
    const FoodItem *food = foodAt(row);
    switch (role) {
    case IsPlaceholderRole:
        return food == nullptr;
    case SectionRole:
        return inBranded ? tr("Branded") : tr("Non-Branded");
    case TitleRole:
        return food ? food->description : QString();
    case BrandRole:
        return food ? food->brand : QString();
    case FoodIdRole:
        return food ? food->id : qint64(-1);
    case BrandedRole:
        return inBranded;
    case IndexInSectionRole:
        return inBranded ? row - brandedFirstRow() : row;
    default:
        return {};
    }
}

QHash<int, QByteArray> SearchResultsModel::roleNames() const
{
    return {{IsPlaceholderRole, "isPlaceholder"},
            {SectionRole, "section"},
            {TitleRole, "title"},
            {BrandRole, "brand"},
            {FoodIdRole, "foodId"},
            {BrandedRole, "branded"},
            {IndexInSectionRole, "indexInSection"}};
}

void SearchResultsModel::clear()
{
    if (m_nonBranded.placeholder && m_branded.placeholder)
        return;
    beginResetModel();
    m_nonBranded = {};
    m_branded = {};
    endResetModel();
}

void SearchResultsModel::append(const QList<FoodItem> &nonBranded, const QList<FoodItem> &branded)
{
    appendTo(m_nonBranded, 0, nonBranded);
    appendTo(m_branded, brandedFirstRow(), branded);
}

void SearchResultsModel::appendTo(Section &section, int firstRow, const QList<FoodItem> &foods)
{
    if (foods.isEmpty())
        return;
    const int first = firstRow + int(section.foods.size());
    beginInsertRows({}, first, first + int(foods.size()) - 1);
    section.foods.append(foods);
    endInsertRows();
    if (section.placeholder) {
        const int placeholderRow = first + int(foods.size());
        beginRemoveRows({}, placeholderRow, placeholderRow);
        section.placeholder = false;
        endRemoveRows();
    }
}

} // namespace nutrika
