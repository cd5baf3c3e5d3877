#pragma once

#include <QObject>
#include <QtQmlIntegration>
#include <QVariantMap>

class QQmlEngine;
class QJSEngine;

namespace nutrika {

struct MealResult;

/// The calculator's result for a QML host, as plain values: {lines: [{name, portion, quantity,
/// carbohydrates, fibre, fat, protein}], totalCarbohydrates}, an unknown nutrient being null.
class NutrikaHost : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QVariantMap mealResult READ mealResult NOTIFY mealResultChanged)

public:
    static NutrikaHost *create(QQmlEngine *, QJSEngine *);

    [[nodiscard]] QVariantMap mealResult() const;
    Q_INVOKABLE void clearCalculator();

    [[nodiscard]] static QVariantMap toVariant(const MealResult &result);

signals:
    void mealResultChanged();
    void closedWith(const QVariantMap &mealResult);

private:
    NutrikaHost();
};

} // namespace nutrika
