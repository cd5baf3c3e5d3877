#include "picture/FoodLooks.h"

#include "text/FoldedText.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <unicode/unistr.h>

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

Colour colourOf(const std::string &hex)
{
    std::size_t used = 0;
    const unsigned long value = hex.size() == 7 && hex[0] == '#' ? std::stoul(hex.substr(1), &used, 16) : 0;
    if (used != 6)
        throw std::runtime_error("colour \"" + hex + "\" is not #rrggbb");
    const auto channel = [&](unsigned shift) {
        return static_cast<double>((value >> shift) & 0xFFU) / 255.0;
    };
    return {channel(16), channel(8), channel(0)};
}

char32_t glyphOf(const std::string &text)
{
    const auto unicode = icu::UnicodeString::fromUTF8(text);
    if (unicode.countChar32() != 1)
        throw std::runtime_error("glyph \"" + text + "\" is not one character");
    return static_cast<char32_t>(unicode.char32At(0));
}

FoodLook readLook(const nlohmann::json &rule)
{
    FoodLook look;
    if (rule.contains("glyph"))
        look.glyph = glyphOf(rule.at("glyph").get<std::string>());
    look.colour = colourOf(rule.at("colour").get<std::string>());
    if (rule.contains("cup")) {
        look.cupVessel = rule.at("cup").get<std::string>();
        if (look.cupVessel != "bowl" && look.cupVessel != "glass" && look.cupVessel != "cup")
            throw std::runtime_error("cup vessel \"" + look.cupVessel + "\" is not bowl, glass or cup");
    }
    return look;
}

} // namespace

FoodLooks::FoodLooks(std::string_view json)
{
    try {
        const auto table = nlohmann::json::parse(json);
        for (const auto &rule : table.at("looks"))
            m_rules.push_back({strings(rule, "phrases"), strings(rule, "groups"), readLook(rule)});
        m_fallback = readLook(table.at("fallback"));
    } catch (const std::exception &error) {
        throw std::runtime_error(std::string("bad food picture table: ") + error.what());
    }
}

FoodLook FoodLooks::lookOf(std::string_view foldedDescription, std::string_view group) const
{
    for (const auto &rule : m_rules) {
        if (std::any_of(rule.phrases.begin(), rule.phrases.end(),
                        [&](const auto &phrase) { return matchesPhrase(foldedDescription, phrase); }) ||
            std::find(rule.groups.begin(), rule.groups.end(), group) != rule.groups.end())
            return rule.look;
    }
    return m_fallback;
}

std::vector<char32_t> FoodLooks::glyphs() const
{
    std::vector<char32_t> glyphs;
    for (const auto &rule : m_rules) {
        if (rule.look.glyph != 0)
            glyphs.push_back(rule.look.glyph);
    }
    return glyphs;
}

} // namespace foodservice
