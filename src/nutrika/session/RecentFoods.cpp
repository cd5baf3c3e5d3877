#include "RecentFoods.h"

#include "JsonFields.h"
#include "Preferences.h"
#include "StoreLock.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {
namespace {

const QString recentFoodsKey = u"recentFoods"_s;

QList<RecentFood> decodeRecentFoods(const QVariant &stored)
{
    QList<RecentFood> foods;
    if (stored.typeId() != QMetaType::QByteArray)
        return foods;
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(stored.toByteArray(), &error);
    if (error.error != QJsonParseError::NoError || !document.isArray())
        return foods;
    try {
        for (const QJsonValue &entry : document.array())
            foods.append(
                {FoodItem::fromJson(entry[u"foodItem"_s]), PortionItem::fromJson(entry[u"portion"_s])});
    } catch (const JsonDecodeError &) {
        return {};
    }
    return foods.mid(0, mostRecentFoods);
}

} // namespace

QList<RecentFood> recentFoods()
{
    const std::optional<QSettings::SettingsMap> values = Preferences().valuesOnDisk();
    return values ? decodeRecentFoods(values->value(recentFoodsKey)) : QList<RecentFood>();
}

void rememberRecentFood(const FoodItem &food, const PortionItem &portion)
{
    Preferences settings;
    const SaveLock lock(settings.fileName());
    const std::optional<QSettings::SettingsMap> values = settings.valuesOnDisk();
    if (!values)
        return;
    QList<RecentFood> foods = decodeRecentFoods(values->value(recentFoodsKey));
    foods.removeIf([&](const RecentFood &recent) { return recent.food.id == food.id; });
    foods.prepend({food, portion});
    QJsonArray array;
    for (const RecentFood &recent : foods.mid(0, mostRecentFoods))
        array.append(
            QJsonObject{{u"foodItem"_s, recent.food.toJson()}, {u"portion"_s, recent.portion.toJson()}});
    removeAbandonedLock(settings.fileName());
    settings.setValue(recentFoodsKey, QJsonDocument(array).toJson(QJsonDocument::Compact));
    settings.sync();
}

} // namespace nutrika
