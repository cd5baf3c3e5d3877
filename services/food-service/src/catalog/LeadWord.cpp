#include "catalog/LeadWord.h"

#include "text/FoldedText.h"

#include <algorithm>
#include <array>

namespace foodservice {

int leadWordIndex(std::string_view description, bool firstSegmentIsBrand)
{
    static constexpr std::array<std::string_view, 22> classNames = {"alcoholic beverage",
                                                                    "babyfood",
                                                                    "beverages",
                                                                    "candies",
                                                                    "carbonated beverage",
                                                                    "cereals",
                                                                    "cereals ready to eat",
                                                                    "crustaceans",
                                                                    "fast foods",
                                                                    "fish",
                                                                    "game meat",
                                                                    "infant formula",
                                                                    "mollusks",
                                                                    "restaurant",
                                                                    "sauce",
                                                                    "snacks",
                                                                    "soup",
                                                                    "spices",
                                                                    "usda commodity",
                                                                    "beverage",
                                                                    "cereal ready to eat",
                                                                    "candy"};
    const auto comma = description.find(',');
    if (comma == std::string_view::npos)
        return 0;
    const std::string first = foldText(description.substr(0, comma));
    const bool namesClass = std::find(classNames.begin(), classNames.end(), first) != classNames.end();
    if (!namesClass && !firstSegmentIsBrand)
        return 0;
    if (foldText(description.substr(comma + 1)).empty())
        return 0;
    return static_cast<int>(foldedWords(first).size());
}

} // namespace foodservice
