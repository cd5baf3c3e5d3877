#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace nutrika {

/// One nutrient amount with the number of decimal places it is shown with.
struct NutrientValue
{
    Q_GADGET
    QML_VALUE_TYPE(nutrientValue)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString unit MEMBER unit)
    Q_PROPERTY(double value MEMBER value)
    Q_PROPERTY(qint64 dp MEMBER dp)

public:
    QString name;
    QString unit;
    double value = 0;
    qint64 dp = 0;

    [[nodiscard]] QJsonObject toJson() const;
    /// Throws JsonDecodeError.
    [[nodiscard]] static NutrientValue fromJson(const QJsonValue &value);

    friend bool operator==(const NutrientValue &, const NutrientValue &) = default;
};

} // namespace nutrika
