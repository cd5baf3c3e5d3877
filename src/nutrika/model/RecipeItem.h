#pragma once

#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QtQmlIntegration>

namespace nutrika {

class DiaryEntry;
using DiaryEntryPtr = QSharedPointer<DiaryEntry>;

/// A saved meal. Identity is `id` (-1 until its first save); copies share their lines.
struct RecipeItem
{
    Q_GADGET
    QML_VALUE_TYPE(recipeItem)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(qint64 id MEMBER id)
    Q_PROPERTY(qint64 servings MEMBER servings)

public:
    QString name;
    qint64 id = -1;
    QList<DiaryEntryPtr> items;
    qint64 servings = 1;

    /// Carbohydrates in one serving, rounded to one decimal.
    [[nodiscard]] Q_INVOKABLE double getTotalTracked() const;

    [[nodiscard]] QJsonObject toJson() const;
    /// Throws JsonDecodeError.
    [[nodiscard]] static RecipeItem fromJson(const QJsonValue &value);
};

} // namespace nutrika
