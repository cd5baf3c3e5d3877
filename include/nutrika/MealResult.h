#pragma once

#include <optional>
#include <QList>
#include <QString>

namespace nutrika {

/// One calculator line as the host receives it.
struct MealLine
{
    /// The food's description or the meal's name.
    QString name;
    /// What the line counts, as the calculator says it: "1 medium (7\" to 7-7/8\" long) · 118 g × 2",
    /// "50 g", "1 serving of 2".
    QString portion;
    /// Portions of a food, or servings of a meal.
    qint64 quantity = 0;
    /// Grams of carbohydrates, rounded to one decimal exactly as the calculator shows them.
    double carbohydrates = 0;
    /// Grams of fibre, fat and protein in the whole line, to one decimal; absent when the service did
    /// not report them for the line, or for any food of a meal.
    std::optional<double> fibre;
    std::optional<double> fat;
    std::optional<double> protein;

    friend bool operator==(const MealLine &, const MealLine &) = default;
};

/// The calculator as the person sees it: every line in order and the total.
struct MealResult
{
    QList<MealLine> lines;
    /// Grams of carbohydrates, the calculator's total as shown.
    double totalCarbohydrates = 0;

    friend bool operator==(const MealResult &, const MealResult &) = default;
};

/// The unit shown beside the grams of carbohydrates.
enum class CarbUnit
{
    Grams,     ///< grams alone, as the calculator shows them by default
    BE,        ///< Broteinheit, 12 g
    KE,        ///< Kohlenhydrateinheit, 10 g
    Exchanges, ///< carbohydrate exchanges, 15 g
};

/// What a host may turn on. Each option is off by default, and with every option off the screens are
/// exactly as without them.
struct HostOptions
{
    /// A carbohydrate unit beside the grams on the calculator's lines and total and on the preview.
    CarbUnit carbUnit = CarbUnit::Grams;
    /// Net carbohydrates (less fibre) beside the grams, where the service reports fibre.
    bool netCarbohydrates = false;
    /// Fat-protein units of the calculator (100 kcal from fat and protein each) with their absorption time.
    bool fatProteinUnits = false;
    /// Removing a line offers "Undo" for a few seconds.
    bool undoRemoval = false;
    /// The food search lists the foods lately added, with their last portion, before anything is typed.
    bool recentFoods = false;
    /// The language of the screens: "de" or "fr" (translations ship for both), "en"; empty follows the
    /// system's locale. The English texts are the module's own, and numbers keep their decimal point.
    QString language;

    friend bool operator==(const HostOptions &, const HostOptions &) = default;
};

} // namespace nutrika
