#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace foodservice {

// Places foods in their USDA food group. The first two digits of the five-digit
// food number name the group; numbers outside the classic groups are placed by
// the first placement rule whose phrase their description contains.
class FoodGroups
{
public:
    // Reads {"groups": {"01": name, ...}, "placement": [{"group", "phrases"}], "fallback"}.
    // Throws std::runtime_error on a malformed table.
    explicit FoodGroups(std::string_view json);

    [[nodiscard]] std::string groupOf(int foodId, std::string_view foldedDescription) const;

private:
    struct Placement
    {
        std::string group;
        std::vector<std::string> phrases;
    };
    std::map<int, std::string> m_byPrefix;
    std::vector<Placement> m_placements;
    std::string m_fallback;
};

} // namespace foodservice
