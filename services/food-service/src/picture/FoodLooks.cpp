#include "picture/FoodLooks.h"

#include "text/FoldedText.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <unicode/unistr.h>

namespace foodservice {
namespace {

using Forms = std::map<std::string, FoodForm, std::less<>>;

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

template <typename Value>
Value named(const std::map<std::string, Value, std::less<>> &names, const std::string &name, const char *what)
{
    const auto found = names.find(name);
    if (found == names.end())
        throw std::runtime_error(std::string(what) + " \"" + name + "\" is not defined");
    return found->second;
}

Forms readForms(const nlohmann::json &table)
{
    static const std::map<std::string, Shape, std::less<>> shapes = {
        {"glyph", Shape::Glyph}, {"slice", Shape::Slice},   {"slab", Shape::Slab}, {"wedge", Shape::Wedge},
        {"cube", Shape::Cube},   {"nugget", Shape::Nugget}, {"disc", Shape::Disc}, {"heap", Shape::Heap}};
    Forms forms;
    for (const auto &[name, form] : table.items()) {
        const FoodForm read{named(shapes, form.at("shape").get<std::string>(), "shape"),
                            form.at("cm").get<double>(), form.at("g").get<double>()};
        if (!(read.centimetres > 0 && read.grams > 0))
            throw std::runtime_error("form \"" + name + "\" needs a size and a weight above 0");
        forms.emplace(name, read);
    }
    return forms;
}

FoodLook readLook(const nlohmann::json &rule, const Forms &forms)
{
    static const std::map<std::string, Texture, std::less<>> textures = {{"smooth", Texture::Smooth},
                                                                         {"grains", Texture::Grains},
                                                                         {"flakes", Texture::Flakes},
                                                                         {"strands", Texture::Strands},
                                                                         {"lumps", Texture::Lumps}};
    FoodLook look;
    look.name = rule.value("name", "");
    if (rule.contains("glyph"))
        look.glyph = glyphOf(rule.at("glyph").get<std::string>());
    look.colour = colourOf(rule.at("colour").get<std::string>());
    look.texture = named(textures, rule.value("texture", "smooth"), "texture");
    look.cupVessel = rule.value("cup", "bowl");
    if (look.cupVessel != "bowl" && look.cupVessel != "glass" && look.cupVessel != "cup")
        throw std::runtime_error("cup vessel \"" + look.cupVessel + "\" is not bowl, glass or cup");
    look.whole = named(forms, rule.value("form", "heap"), "form");
    if (look.whole.shape == Shape::Glyph && look.glyph == 0)
        throw std::runtime_error("rule \"" + look.name + "\" has a glyph form but no glyph");
    if (rule.contains("cut"))
        look.cut = named(forms, rule.at("cut").get<std::string>(), "form");
    return look;
}

} // namespace

FoodLooks::FoodLooks(std::string_view json)
{
    try {
        const auto table = nlohmann::json::parse(json);
        const Forms forms = readForms(table.at("forms"));
        for (const auto &rule : table.at("looks")) {
            Rule read{strings(rule, "phrases"), strings(rule, "groups"), readLook(rule, forms)};
            // A group rule covers many foods, so the picture names the food itself.
            if (read.phrases.empty())
                read.look.name.clear();
            m_rules.push_back(std::move(read));
        }
        m_fallback = readLook(table.at("fallback"), forms);
    } catch (const std::exception &error) {
        throw std::runtime_error(std::string("bad food picture table: ") + error.what());
    }
}

FoodLook FoodLooks::lookOf(std::string_view foldedDescription, std::string_view group,
                           std::string_view foodName) const
{
    const auto rule = std::find_if(m_rules.begin(), m_rules.end(), [&](const Rule &candidate) {
        return std::any_of(candidate.phrases.begin(), candidate.phrases.end(),
                           [&](const auto &phrase) { return matchesPhrase(foldedDescription, phrase); }) ||
               std::find(candidate.groups.begin(), candidate.groups.end(), group) != candidate.groups.end();
    });
    FoodLook look = rule == m_rules.end() ? m_fallback : rule->look;
    if (look.name.empty())
        look.name = foodName;
    return look;
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
