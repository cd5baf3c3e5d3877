#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace nutrika {

/// A food found by search. Identity is `id`; `_id` carries the same value.
struct FoodItem
{
    Q_GADGET
    QML_VALUE_TYPE(foodItem)
    Q_PROPERTY(QString description MEMBER description)
    Q_PROPERTY(qint64 id MEMBER id)
    Q_PROPERTY(QString brand MEMBER brand)
    Q_PROPERTY(bool isBranded MEMBER isBranded)

public:
    QString description;
    qint64 id = 0;
    qint64 _id = 0;
    QString brand;
    bool isBranded = false;

    [[nodiscard]] QJsonObject toJson() const;
    /// Throws JsonDecodeError.
    [[nodiscard]] static FoodItem fromJson(const QJsonValue &value);

    friend bool operator==(const FoodItem &a, const FoodItem &b) { return a.id == b.id; }
};

} // namespace nutrika
