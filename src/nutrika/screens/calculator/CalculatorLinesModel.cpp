#include "CalculatorLinesModel.h"

#include "EnvironmentVariables.h"
#include "Formatting.h"
#include "HostSettings.h"
#include "MealNutrients.h"

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

CalculatorLinesModel::CalculatorLinesModel(EnvironmentVariables *session, QObject *parent)
    : QAbstractListModel(parent), m_session(session)
{
    connect(session, &EnvironmentVariables::trackedNutrientListItemsChanged, this,
            &CalculatorLinesModel::reload);
    connect(HostSettings::shared(), &HostSettings::changed, this, [this] {
        if (!m_lines.isEmpty())
            emit dataChanged(index(0), index(int(m_lines.size()) - 1), {AmountRole, NoteRole});
    });
    reload();
}

int CalculatorLinesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_lines.size());
}

QVariant CalculatorLinesModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const DiaryEntry &entry = *m_lines.at(index.row());
    switch (role) {
    case TitleRole:
        return entry.title();
    case IsFoodRole:
        return entry.type() == EntryType::Food;
    case AmountRole:
        return lineAmount(entry);
    case EntryRole:
        return QVariant::fromValue(const_cast<DiaryEntry *>(&entry));
    case DetailRole:
        return entryDetail(entry);
    case NoteRole:
        return lineNote(entry);
    default:
        return {};
    }
}

QHash<int, QByteArray> CalculatorLinesModel::roleNames() const
{
    return {{TitleRole, "title"}, {IsFoodRole, "isFood"}, {AmountRole, "amount"},
            {EntryRole, "entry"}, {DetailRole, "detail"}, {NoteRole, "note"}};
}

DiaryEntryPtr CalculatorLinesModel::line(int row) const
{
    return row >= 0 && row < m_lines.size() ? m_lines.at(row) : DiaryEntryPtr();
}

QString CalculatorLinesModel::lineAmount(const DiaryEntry &entry)
{
    const bool complete = entry.type() == EntryType::Food ? entry.foodItem() && entry.hasTrackedNutrient()
                                                          : entry.recipeItem().has_value();
    return complete
               ? carbohydrateText(entry.totalTrackedNutrient(), HostSettings::shared()->options().carbUnit)
               : QString();
}

QString CalculatorLinesModel::lineNote(const DiaryEntry &entry)
{
    if (!HostSettings::shared()->netCarbohydrates())
        return {};
    const std::optional<double> fibre = lineNutrient(entry, FIBRE_NUTRIENT);
    return fibre ? netText(entry.totalTrackedNutrient(), *fibre) : tr("fibre unknown");
}

void CalculatorLinesModel::reload()
{
    beginResetModel();
    for (const QMetaObject::Connection &watch : std::as_const(m_watches))
        disconnect(watch);
    m_watches.clear();
    m_lines = m_session->TrackedNutrientListItems();
    for (const DiaryEntryPtr &line : std::as_const(m_lines)) {
        const DiaryEntry *entry = line.data();
        const auto changed = [this, entry] { lineChanged(entry); };
        m_watches.append(connect(entry, &DiaryEntry::totalChanged, this, changed));
        m_watches.append(connect(entry, &DiaryEntry::titleChanged, this, changed));
        m_watches.append(connect(entry, &DiaryEntry::portionChanged, this, changed));
        m_watches.append(connect(entry, &DiaryEntry::quantityChanged, this, changed));
        m_watches.append(connect(entry, &DiaryEntry::nutrientsChanged, this, changed));
    }
    endResetModel();
    emit totalChanged();
}

void CalculatorLinesModel::lineChanged(const DiaryEntry *entry)
{
    // One object may stand at several positions; every one of them shows the change.
    for (int row = 0; row < m_lines.size(); ++row) {
        if (m_lines.at(row).data() == entry)
            emit dataChanged(index(row), index(row), {TitleRole, AmountRole, DetailRole, NoteRole});
    }
    emit totalChanged();
}

} // namespace nutrika
