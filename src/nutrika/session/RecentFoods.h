#pragma once

#include "FoodItem.h"
#include "PortionItem.h"

#include <QList>

namespace nutrika {

/// A food lately added to the calculator, with the portion it was last added in.
struct RecentFood
{
    FoodItem food;
    PortionItem portion;
};

/// How many recent foods are kept.
inline constexpr qsizetype mostRecentFoods = 10;

/// The foods lately added to the calculator, the latest first, read afresh from the preferences store
/// beside the saved meals. A list that cannot be read reads as none.
[[nodiscard]] QList<RecentFood> recentFoods();

/// Puts `food` first with `portion`, keeping one entry per food and at most mostRecentFoods. The write
/// is locked against other processes like a meal's, and is skipped when the store cannot be read as
/// preferences: rewriting it would lose the saved meals it may still hold.
void rememberRecentFood(const FoodItem &food, const PortionItem &portion);

} // namespace nutrika
