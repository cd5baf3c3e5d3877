#include "MealNutrients.h"

#include "Formatting.h"
#include "Totals.h"

#include <cmath>
#include <QCoreApplication>

namespace nutrika {
namespace {

std::optional<double> foodNutrient(const DiaryEntry &entry, const QString &name)
{
    if (!entry.nutrients())
        return std::nullopt;
    for (const NutrientValue &nutrient : *entry.nutrients()) {
        if (nutrient.name == name)
            return double(entry.quantity()) * nutrient.value;
    }
    return std::nullopt;
}

std::optional<double> roundedOrAbsent(const std::optional<double> &value)
{
    return value ? std::optional(round1(*value)) : std::nullopt;
}

} // namespace

QString portionText(const PortionItem &portion)
{
    const QString weight = QString::number(portion.size) + u' ' + formatUnitShort(portion.unit).trimmed();
    // A custom amount is its weight alone; its portion record describes nothing the person chose.
    return portion.id == basePortionItem().id ? weight : portion.description + u" · "_s + weight;
}

QString entryDetail(const DiaryEntry &entry)
{
    const qint64 quantity = entry.quantity();
    if (entry.type() == EntryType::Recipe) {
        if (!entry.recipeItem())
            return {};
        const qint64 servings = entry.recipeItem()->servings;
        return quantity == 1 ? QCoreApplication::translate("MealNutrients", "1 serving of %1").arg(servings)
                             : QCoreApplication::translate("MealNutrients", "%1 servings of %2")
                                   .arg(quantity)
                                   .arg(servings);
    }
    if (!entry.portion())
        return {};
    QString detail = portionText(*entry.portion());
    if (quantity > 1)
        detail += u" × "_s + QString::number(quantity);
    return detail;
}

std::optional<double> lineNutrient(const DiaryEntry &entry, const QString &name)
{
    if (entry.type() == EntryType::Food)
        return foodNutrient(entry, name);
    if (!entry.recipeItem())
        return std::nullopt;
    const RecipeItem &meal = *entry.recipeItem();
    const double servings = double(std::max<qint64>(meal.servings, 1));
    double perServing = 0;
    for (const DiaryEntryPtr &ingredient : meal.items) {
        const std::optional<double> amount = ingredient ? lineNutrient(*ingredient, name) : std::nullopt;
        if (!amount)
            return std::nullopt;
        perServing += *amount / servings;
    }
    return double(entry.quantity()) * perServing;
}

QString carbUnitText(double roundedGrams, CarbUnit unit)
{
    // In whole tenths, so that 14.5 g is 1.5 KE: the grams' tenths divided by the unit, halves up.
    const auto figure = [&](qint64 gramsPerUnit, const QString &name) {
        const qint64 tenths = std::llround(std::abs(roundedGrams) * 10);
        const qint64 unitTenths = (tenths * 2 + gramsPerUnit) / (2 * gramsPerUnit);
        return QString::number(double(unitTenths) / 10, 'f', 1) + u' ' + name;
    };
    switch (unit) {
    case CarbUnit::Grams:
        return {};
    case CarbUnit::BE:
        return figure(12, u"BE"_s);
    case CarbUnit::KE:
        return figure(10, u"KE"_s);
    case CarbUnit::Exchanges:
        return figure(15, QCoreApplication::translate("MealNutrients", "exch."));
    }
    return {};
}

QString carbohydrateText(double roundedGrams, CarbUnit unit)
{
    const QString units = carbUnitText(roundedGrams, unit);
    return units.isEmpty() ? amountText(roundedGrams) : amountText(roundedGrams) + u" · "_s + units;
}

QString netText(double roundedGrams, double fibre)
{
    return QCoreApplication::translate("MealNutrients", "net %1")
        .arg(amountText(round1(std::max(0.0, roundedGrams - round1(fibre)))));
}

double fatProteinUnits(double fat, double protein)
{
    return (fat * 9 + protein * 4) / 100;
}

int absorptionHours(double units)
{
    const double whole = std::round(units);
    if (whole < 1)
        return 0;
    if (whole >= 4)
        return 8;
    return int(whole) + 2;
}

MealResult mealResultOf(const QList<DiaryEntryPtr> &lines)
{
    MealResult result;
    for (const DiaryEntryPtr &entry : lines) {
        if (!entry)
            continue;
        result.lines.append({entry->title(), entryDetail(*entry), entry->quantity(),
                             entry->totalTrackedNutrient(),
                             roundedOrAbsent(lineNutrient(*entry, FIBRE_NUTRIENT)),
                             roundedOrAbsent(lineNutrient(*entry, FAT_NUTRIENT)),
                             roundedOrAbsent(lineNutrient(*entry, PROTEIN_NUTRIENT))});
    }
    result.totalCarbohydrates = calculateTotal(lines);
    return result;
}

} // namespace nutrika
