#include "catalog/FoodGroups.h"

#include "text/FoldedText.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace foodservice {

FoodGroups::FoodGroups(std::string_view json)
{
    try {
        const auto table = nlohmann::json::parse(json);
        for (const auto &[prefix, name] : table.at("groups").items())
            m_byPrefix.emplace(std::stoi(prefix), name.get<std::string>());
        for (const auto &rule : table.at("placement")) {
            Placement placement{rule.at("group").get<std::string>(), {}};
            for (const auto &phrase : rule.at("phrases"))
                placement.phrases.push_back(phrase.get<std::string>());
            m_placements.push_back(std::move(placement));
        }
        m_fallback = table.at("fallback").get<std::string>();
    } catch (const std::exception &error) {
        throw std::runtime_error(std::string("bad food group table: ") + error.what());
    }
}

std::string FoodGroups::groupOf(int foodId, std::string_view foldedDescription) const
{
    if (const auto found = m_byPrefix.find(foodId / 1000); found != m_byPrefix.end())
        return found->second;
    for (const auto &placement : m_placements) {
        for (const auto &phrase : placement.phrases) {
            if (matchesPhrase(foldedDescription, phrase))
                return placement.group;
        }
    }
    return m_fallback;
}

} // namespace foodservice
