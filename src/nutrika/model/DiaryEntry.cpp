#include "DiaryEntry.h"

#include "JsonFields.h"
#include "Totals.h"

#include <QJSEngine>
#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

DiaryEntry::DiaryEntry(qint64 id, entryType type) : m_id(id), m_type(type)
{
    // Lines are owned by the C++ lists; QML only borrows them.
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
}

DiaryEntry::DiaryEntry(qint64 id, const PortionItem &portion, const FoodItem &food)
    : DiaryEntry(id, EntryType::Food)
{
    m_portion = portion;
    m_foodItem = food;
}

DiaryEntry::DiaryEntry(qint64 id, const RecipeItem &recipe, qint64 quantity)
    : DiaryEntry(id, EntryType::Recipe)
{
    m_recipeItem = recipe;
    m_quantity = quantity;
    watchRecipeLines();
}

DiaryEntry::DiaryEntry(qint64 id, const PortionItem &portion, const FoodItem &food, qint64 quantity,
                       std::optional<QList<NutrientValue>> nutrients,
                       std::optional<NutrientValue> trackedNutrient)
    : DiaryEntry(id, portion, food)
{
    m_quantity = quantity;
    m_nutrients = std::move(nutrients);
    m_trackedNutrient = std::move(trackedNutrient);
}

void DiaryEntry::setPortion(const std::optional<PortionItem> &portion)
{
    m_portion = portion;
    emit portionChanged();
}

void DiaryEntry::setRecipeItem(const std::optional<RecipeItem> &recipe)
{
    m_recipeItem = recipe;
    watchRecipeLines();
    emit recipeItemChanged();
    emit titleChanged();
    emit totalChanged();
}

void DiaryEntry::watchRecipeLines()
{
    for (const QMetaObject::Connection &watch : std::as_const(m_recipeLineWatches))
        disconnect(watch);
    m_recipeLineWatches.clear();
    if (!m_recipeItem)
        return;
    for (const DiaryEntryPtr &line : std::as_const(m_recipeItem->items)) {
        if (line && line.data() != this)
            m_recipeLineWatches.append(
                connect(line.data(), &DiaryEntry::totalChanged, this, &DiaryEntry::totalChanged));
    }
}

QString DiaryEntry::title() const
{
    if (m_type == EntryType::Food)
        return m_foodItem ? m_foodItem->description : QString();
    return m_recipeItem ? m_recipeItem->name : QString();
}

void DiaryEntry::setQuantity(qint64 quantity)
{
    m_quantity = quantity;
    emit quantityChanged();
    emit totalChanged();
}

void DiaryEntry::setNutrients(const std::optional<QList<NutrientValue>> &nutrients)
{
    m_nutrients = nutrients;
    emit nutrientsChanged();
}

void DiaryEntry::setTrackedNutrient(const std::optional<NutrientValue> &tracked)
{
    m_trackedNutrient = tracked;
    emit trackedNutrientChanged();
    emit totalChanged();
}

double DiaryEntry::totalTrackedNutrient() const
{
    if (m_type == EntryType::Food)
        return m_trackedNutrient ? round1(double(m_quantity) * m_trackedNutrient->value) : 0.0;
    return m_recipeItem ? round1(double(m_quantity) * m_recipeItem->getTotalTracked()) : 0.0;
}

namespace {

QJsonValue optionalToJson(const auto &value)
{
    return value ? QJsonValue(value->toJson()) : QJsonValue(QJsonValue::Null);
}

entryType typeFromJson(const QJsonValue &value)
{
    const QJsonObject o = json::asObject(value, u"type");
    const bool food = o.contains(u"food");
    const bool recipe = o.contains(u"recipe");
    if (food == recipe)
        throw JsonDecodeError(u"Invalid number of keys found, expected one."_s);
    const QStringView key = food ? u"food" : u"recipe";
    (void)json::object(o, key);
    return food ? EntryType::Food : EntryType::Recipe;
}

} // namespace

QJsonObject DiaryEntry::toJson() const
{
    QJsonObject o{
        {u"id"_s, m_id},
        {u"type"_s, QJsonObject{{m_type == EntryType::Food ? u"food"_s : u"recipe"_s, QJsonObject()}}},
        {u"quantity"_s, m_quantity},
        {u"trackedNutrient"_s, optionalToJson(m_trackedNutrient)}};
    if (m_portion)
        o.insert(u"portion", m_portion->toJson());
    if (m_foodItem)
        o.insert(u"foodItem", m_foodItem->toJson());
    if (m_recipeItem)
        o.insert(u"recipeItem", m_recipeItem->toJson());
    if (m_nutrients) {
        QJsonArray list;
        for (const NutrientValue &n : *m_nutrients)
            list.append(n.toJson());
        o.insert(u"nutrients", list);
    } else {
        o.insert(u"nutrients", QJsonValue::Null);
    }
    return o;
}

DiaryEntryPtr DiaryEntry::fromJson(const QJsonValue &value)
{
    const QJsonObject o = json::asObject(value, u"DiaryEntry");
    DiaryEntryPtr entry(new DiaryEntry(json::integer(o, u"id"), typeFromJson(json::required(o, u"type"))));
    // Optional records may be missing or null; present ones must decode.
    const auto present = [&o](QStringView key) {
        const QJsonValue v = o.value(key);
        return !v.isUndefined() && !v.isNull();
    };
    if (present(u"portion"))
        entry->m_portion = PortionItem::fromJson(o.value(u"portion"));
    if (present(u"foodItem"))
        entry->m_foodItem = FoodItem::fromJson(o.value(u"foodItem"));
    if (present(u"recipeItem")) {
        entry->m_recipeItem = RecipeItem::fromJson(o.value(u"recipeItem"));
        entry->watchRecipeLines();
    }
    entry->m_quantity = json::integer(o, u"quantity");
    if (const QJsonValue nutrients = json::required(o, u"nutrients"); !nutrients.isNull()) {
        const QJsonArray list = json::array(o, u"nutrients");
        QList<NutrientValue> values;
        values.reserve(list.size());
        for (const QJsonValue &n : list)
            values.append(NutrientValue::fromJson(n));
        entry->m_nutrients = std::move(values);
    }
    if (const QJsonValue tracked = json::required(o, u"trackedNutrient"); !tracked.isNull())
        entry->m_trackedNutrient = NutrientValue::fromJson(tracked);
    return entry;
}

} // namespace nutrika
