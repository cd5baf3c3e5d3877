#pragma once

#include "FoodItem.h"
#include "NutrientValue.h"
#include "PortionItem.h"
#include "RecipeItem.h"

#include <optional>
#include <QJsonObject>
#include <QObject>
#include <QtQmlIntegration>

namespace nutrika {

/// Whether a calculator line holds a food with its portion or a saved meal.
namespace EntryType {
Q_NAMESPACE
QML_ELEMENT
enum Value
{
    Food,
    Recipe
};
Q_ENUM_NS(Value)
} // namespace EntryType
using entryType = EntryType::Value;

/// One calculator line, shared by every list and screen that holds it, so that an edit made on one
/// screen is seen on all of them. Every change announces itself, and a meal line also announces every
/// change of the lines inside its meal, so whoever shows a total follows edits made anywhere.
class DiaryEntry : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Lines are created by the screens")
    Q_PROPERTY(qint64 id READ id CONSTANT)
    Q_PROPERTY(nutrika::EntryType::Value type READ type CONSTANT)
    Q_PROPERTY(qint64 quantity READ quantity WRITE setQuantity NOTIFY quantityChanged)
    Q_PROPERTY(QList<nutrika::NutrientValue> nutrients READ nutrientList NOTIFY nutrientsChanged)
    Q_PROPERTY(bool hasTrackedNutrient READ hasTrackedNutrient NOTIFY trackedNutrientChanged)
    Q_PROPERTY(double total READ totalTrackedNutrient NOTIFY totalChanged)
    /// The food's description or the meal's name.
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)

public:
    /// A food line of one portion, without nutrients yet.
    DiaryEntry(qint64 id, const PortionItem &portion, const FoodItem &food);
    /// A meal line of `quantity` servings.
    DiaryEntry(qint64 id, const RecipeItem &recipe, qint64 quantity);
    /// A food line with everything known.
    DiaryEntry(qint64 id, const PortionItem &portion, const FoodItem &food, qint64 quantity,
               std::optional<QList<NutrientValue>> nutrients, std::optional<NutrientValue> trackedNutrient);

    [[nodiscard]] qint64 id() const { return m_id; }
    [[nodiscard]] entryType type() const { return m_type; }
    [[nodiscard]] const std::optional<PortionItem> &portion() const { return m_portion; }
    [[nodiscard]] const std::optional<FoodItem> &foodItem() const { return m_foodItem; }
    [[nodiscard]] const std::optional<RecipeItem> &recipeItem() const { return m_recipeItem; }
    void setPortion(const std::optional<PortionItem> &portion);
    void setRecipeItem(const std::optional<RecipeItem> &recipe);

    /// The food's description or the meal's name; "" when the line lacks its record.
    [[nodiscard]] QString title() const;

    [[nodiscard]] qint64 quantity() const { return m_quantity; }
    void setQuantity(qint64 quantity);
    [[nodiscard]] const std::optional<QList<NutrientValue>> &nutrients() const { return m_nutrients; }
    [[nodiscard]] QList<NutrientValue> nutrientList() const
    {
        return m_nutrients.value_or(QList<NutrientValue>());
    }
    void setNutrients(const std::optional<QList<NutrientValue>> &nutrients);
    [[nodiscard]] const std::optional<NutrientValue> &trackedNutrient() const { return m_trackedNutrient; }
    [[nodiscard]] bool hasTrackedNutrient() const { return m_trackedNutrient.has_value(); }
    void setTrackedNutrient(const std::optional<NutrientValue> &tracked);

    /// This line's carbohydrates, rounded to one decimal; a line missing what it needs counts as 0.
    [[nodiscard]] Q_INVOKABLE double totalTrackedNutrient() const;

    [[nodiscard]] QJsonObject toJson() const;
    /// Throws JsonDecodeError, with "Invalid number of keys found, expected one." for a bad "type".
    [[nodiscard]] static DiaryEntryPtr fromJson(const QJsonValue &value);

signals:
    void portionChanged();
    void recipeItemChanged();
    void titleChanged();
    void quantityChanged();
    void nutrientsChanged();
    void trackedNutrientChanged();
    /// Any change that can move totalTrackedNutrient().
    void totalChanged();

private:
    DiaryEntry(qint64 id, entryType type);
    /// Follows the lines of the meal, so that their changes move this line's total.
    void watchRecipeLines();

    qint64 m_id;
    entryType m_type;
    std::optional<PortionItem> m_portion;
    std::optional<FoodItem> m_foodItem;
    std::optional<RecipeItem> m_recipeItem;
    qint64 m_quantity = 1;
    std::optional<QList<NutrientValue>> m_nutrients;
    std::optional<NutrientValue> m_trackedNutrient;
    QList<QMetaObject::Connection> m_recipeLineWatches;
};

} // namespace nutrika
