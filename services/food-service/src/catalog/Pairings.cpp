#include "catalog/Pairings.h"

#include "text/FoldedText.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace foodservice {
namespace {

std::vector<std::string> strings(const nlohmann::json &rule, const char *key)
{
    std::vector<std::string> values;
    if (rule.contains(key)) {
        for (const auto &value : rule.at(key))
            values.push_back(value.get<std::string>());
    }
    return values;
}

} // namespace

Pairings::Pairings(std::string_view json)
{
    try {
        const auto table = nlohmann::json::parse(json);
        for (const auto &rule : table.at("rules"))
            m_rules.push_back({strings(rule, "phrases"), strings(rule, "groups"), strings(rule, "offer")});
    } catch (const std::exception &error) {
        throw std::runtime_error(std::string("bad pairing table: ") + error.what());
    }
}

std::vector<std::string> Pairings::offersFor(std::string_view foldedDescription, std::string_view group) const
{
    std::vector<std::string> offers;
    for (const auto &rule : m_rules) {
        const bool applies =
            std::any_of(rule.phrases.begin(), rule.phrases.end(),
                        [&](const auto &phrase) { return matchesPhrase(foldedDescription, phrase); }) ||
            std::find(rule.groups.begin(), rule.groups.end(), group) != rule.groups.end();
        if (!applies)
            continue;
        for (const auto &offer : rule.offers) {
            if (std::find(offers.begin(), offers.end(), offer) == offers.end())
                offers.push_back(offer);
        }
    }
    return offers;
}

} // namespace foodservice
