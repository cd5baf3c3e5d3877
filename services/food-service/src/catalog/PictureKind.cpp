#include "catalog/PictureKind.h"

#include "text/FoldedText.h"

#include <map>

namespace foodservice {

std::string pictureKindOf(std::string_view measureName)
{
    static const std::map<std::string, std::string, std::less<>> kinds = {{"cup", "cup"},
                                                                          {"cups", "cup"},
                                                                          {"glass", "glass"},
                                                                          {"bowl", "bowl"},
                                                                          {"slice", "slice"},
                                                                          {"slices", "slice"},
                                                                          {"piece", "piece"},
                                                                          {"pieces", "piece"},
                                                                          {"item", "piece"},
                                                                          {"items", "piece"},
                                                                          {"each", "piece"},
                                                                          {"patty", "piece"},
                                                                          {"cookie", "piece"},
                                                                          {"cracker", "piece"},
                                                                          {"biscuit", "piece"},
                                                                          {"muffin", "piece"},
                                                                          {"roll", "piece"},
                                                                          {"bar", "piece"},
                                                                          {"pastry", "piece"},
                                                                          {"small", "small"},
                                                                          {"extra small", "small"},
                                                                          {"medium", "medium"},
                                                                          {"large", "large"},
                                                                          {"extra large", "large"},
                                                                          {"jumbo", "large"},
                                                                          {"tbsp", "tablespoon"},
                                                                          {"tbs", "tablespoon"},
                                                                          {"tablespoon", "tablespoon"},
                                                                          {"tablespoons", "tablespoon"},
                                                                          {"tsp", "teaspoon"},
                                                                          {"teaspoon", "teaspoon"},
                                                                          {"teaspoons", "teaspoon"}};
    const auto words = foldedWords(foldText(measureName));
    if (words.empty())
        return {};
    if (words.size() > 1) {
        if (const auto found = kinds.find(words[0] + " " + words[1]); found != kinds.end())
            return found->second;
    }
    const auto found = kinds.find(words[0]);
    return found == kinds.end() ? std::string() : found->second;
}

} // namespace foodservice
