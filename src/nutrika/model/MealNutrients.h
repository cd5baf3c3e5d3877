#pragma once

#include "DiaryEntry.h"
#include "nutrika/MealResult.h"

#include <optional>
#include <QList>
#include <QString>

namespace nutrika {

/// The names under which the service reports the nutrients a host gets beside the carbohydrates.
inline const QString FIBRE_NUTRIENT = QStringLiteral("Fibre (AOAC)");
inline const QString FAT_NUTRIENT = QStringLiteral("Fat");
inline const QString PROTEIN_NUTRIENT = QStringLiteral("Protein");

/// A portion and its weight, "1 medium · 118 g", or a custom amount's weight alone, "50 g".
[[nodiscard]] QString portionText(const PortionItem &portion);

/// What the line counts, so a person can check it before dosing: the portion and its weight, times
/// the quantity above 1 ("1 medium · 118 g × 2"), or a meal's servings ("1 serving of 2").
[[nodiscard]] QString entryDetail(const DiaryEntry &entry);

/// Grams of `name` in the whole line, unrounded: a food's portions times its nutrient, or a meal's
/// servings times each ingredient's share. Absent when the line, or any food of its meal, lacks it.
[[nodiscard]] std::optional<double> lineNutrient(const DiaryEntry &entry, const QString &name);

/// Every line with its portion text and nutrients, and the total, rounded as the calculator shows them.
[[nodiscard]] MealResult mealResultOf(const QList<DiaryEntryPtr> &lines);

/// The unit figure beside rounded grams, one decimal, halves up: 27 g is "2.7 KE", 14.5 g "1.5 KE",
/// 15 g "1.0 exch."; "" for grams.
[[nodiscard]] QString carbUnitText(double roundedGrams, CarbUnit unit);
/// "27 g", followed by " · 2.7 KE" when a unit is chosen.
[[nodiscard]] QString carbohydrateText(double roundedGrams, CarbUnit unit);

/// Net carbohydrates of rounded grams and fibre, never below 0: "net 24.1 g".
[[nodiscard]] QString netText(double roundedGrams, double fibre);

/// Fat-protein units: 100 kcal from fat (9 kcal/g) and protein (4 kcal/g) make one.
[[nodiscard]] double fatProteinUnits(double fat, double protein);
/// Hours over which the fat and protein are absorbed: 3 for 1 unit, 4 for 2, 5 for 3, 8 from 4; 0
/// below one unit, when nothing is to be spread.
[[nodiscard]] int absorptionHours(double units);

} // namespace nutrika
