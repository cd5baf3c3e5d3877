#pragma once

#include <optional>
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace nutrika {

/// How a portion's unit converts to its base unit. Identity is `id`.
struct ConvertibleUnit
{
    Q_GADGET
    QML_VALUE_TYPE(convertibleUnit)

public:
    QString type;
    qint64 is_base = 0;
    qint64 id = 0;
    qint64 to_base_conversion_rate = 0;
    QString name;
    QString unit;

    [[nodiscard]] QJsonObject toJson() const;
    /// Throws JsonDecodeError.
    [[nodiscard]] static ConvertibleUnit fromJson(const QJsonValue &value);

    friend bool operator==(const ConvertibleUnit &a, const ConvertibleUnit &b) { return a.id == b.id; }
};

/// A portion in which a food can be counted. Identity is `id`; `_id` carries the same value.
struct PortionItem
{
    Q_GADGET
    QML_VALUE_TYPE(portionItem)
    Q_PROPERTY(qint64 id MEMBER id)
    Q_PROPERTY(qint64 _id MEMBER _id)
    Q_PROPERTY(QString unit MEMBER unit)
    Q_PROPERTY(qint64 size MEMBER size)
    Q_PROPERTY(QString image_name MEMBER image_name)
    Q_PROPERTY(QString description MEMBER description)

public:
    qint64 order_num = 0;
    qint64 id = 0;
    qint64 _id = 0;
    QString unit;
    qint64 database_import = 0;
    qint64 size = 0;
    std::optional<bool> is_default;
    QString image_name;
    QString description;
    ConvertibleUnit convertible_unit;

    /// The size and its short unit, as boxes and tables show it: "118g", "2 portion".
    [[nodiscard]] Q_INVOKABLE QString sizeText() const;

    [[nodiscard]] QJsonObject toJson() const;
    /// Throws JsonDecodeError.
    [[nodiscard]] static PortionItem fromJson(const QJsonValue &value);

    friend bool operator==(const PortionItem &a, const PortionItem &b) { return a.id == b.id; }
};

/// The portion from which a custom amount in grams is made.
[[nodiscard]] const PortionItem &basePortionItem();

} // namespace nutrika
