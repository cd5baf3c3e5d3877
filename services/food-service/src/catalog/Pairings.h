#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace foodservice {

// Foods commonly eaten together. A rule applies to a food whose folded description
// contains one of its phrases ("^" anchors at the start) or whose group it names;
// it offers foods by their exact descriptions.
class Pairings
{
public:
    // Reads {"rules": [{"name", "phrases", "groups", "offer"}]}; throws std::runtime_error.
    explicit Pairings(std::string_view json);

    // Offered descriptions for a food, in rule order, without repeats.
    [[nodiscard]] std::vector<std::string> offersFor(std::string_view foldedDescription,
                                                     std::string_view group) const;
    [[nodiscard]] std::size_t ruleCount() const { return m_rules.size(); }

private:
    struct Rule
    {
        std::vector<std::string> phrases;
        std::vector<std::string> groups;
        std::vector<std::string> offers;
    };
    std::vector<Rule> m_rules;
};

} // namespace foodservice
