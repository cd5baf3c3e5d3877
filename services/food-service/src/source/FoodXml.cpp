#include "source/FoodXml.h"

#include <charconv>
#include <cmath>
#include <map>
#include <stdexcept>
#include <string>

namespace foodservice {
namespace {

using Attributes = std::map<std::string, std::string, std::less<>>;

struct Tag
{
    std::string name;
    Attributes attributes;
};

void appendCodePoint(std::string &out, unsigned long code)
{
    if (code == 0 || code > 0x10FFFF)
        throw std::runtime_error("bad character reference");
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0 | (code >> 6));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        out += static_cast<char>(0xE0 | (code >> 12));
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (code >> 18));
        out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    }
}

std::string decodeEntities(std::string_view raw)
{
    static const std::map<std::string_view, char> named = {
        {"quot", '"'}, {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"apos", '\''}};
    std::string out;
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (raw[i] != '&') {
            out += raw[i];
            continue;
        }
        const auto end = raw.find(';', i);
        if (end == std::string_view::npos)
            throw std::runtime_error("unterminated entity");
        const auto entity = raw.substr(i + 1, end - i - 1);
        if (entity.starts_with('#')) {
            const bool hex = entity.size() > 1 && (entity[1] == 'x' || entity[1] == 'X');
            const auto digits = entity.substr(hex ? 2 : 1);
            unsigned long code = 0;
            const auto [ptr, ec] =
                std::from_chars(digits.data(), digits.data() + digits.size(), code, hex ? 16 : 10);
            if (ec != std::errc() || ptr != digits.data() + digits.size())
                throw std::runtime_error("bad character reference");
            appendCodePoint(out, code);
        } else if (const auto found = named.find(entity); found != named.end()) {
            out += found->second;
        } else {
            throw std::runtime_error("unknown entity &" + std::string(entity) + ";");
        }
        i = end;
    }
    return out;
}

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// Reads the start tag beginning at xml[at] == '<'; leaves `at` after its '>'.
Tag readTag(std::string_view xml, std::size_t &at)
{
    Tag tag;
    std::size_t i = at + 1;
    while (i < xml.size() && !isSpace(xml[i]) && xml[i] != '>' && xml[i] != '/')
        tag.name += xml[i++];
    while (true) {
        while (i < xml.size() && isSpace(xml[i]))
            ++i;
        if (i >= xml.size())
            throw std::runtime_error("unterminated <" + tag.name + "> tag");
        if (xml[i] == '>' || (xml[i] == '/' && i + 1 < xml.size() && xml[i + 1] == '>')) {
            at = xml.find('>', i) + 1;
            return tag;
        }
        const auto equals = xml.find('=', i);
        if (equals == std::string_view::npos || equals + 1 >= xml.size())
            throw std::runtime_error("bad attribute in <" + tag.name + ">");
        std::string_view name = xml.substr(i, equals - i);
        while (!name.empty() && isSpace(name.back()))
            name.remove_suffix(1);
        std::size_t open = equals + 1;
        while (open < xml.size() && isSpace(xml[open]))
            ++open;
        if (open >= xml.size() || (xml[open] != '"' && xml[open] != '\''))
            throw std::runtime_error("unquoted attribute in <" + tag.name + ">");
        const auto close = xml.find(xml[open], open + 1);
        if (close == std::string_view::npos)
            throw std::runtime_error("unterminated attribute in <" + tag.name + ">");
        tag.attributes.emplace(std::string(name), decodeEntities(xml.substr(open + 1, close - open - 1)));
        i = close + 1;
    }
}

const std::string &required(const Tag &tag, std::string_view name)
{
    const auto found = tag.attributes.find(name);
    if (found == tag.attributes.end())
        throw std::runtime_error("<" + tag.name + "> lacks " + std::string(name));
    return found->second;
}

double number(const Tag &tag, std::string_view name)
{
    const std::string &text = required(tag, name);
    double value = 0;
    const auto [ptr, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec != std::errc() || ptr != text.data() + text.size() || !std::isfinite(value))
        throw std::runtime_error("<" + tag.name + "> " + std::string(name) + " is not a number: \"" + text +
                                 "\"");
    return value;
}

int foodId(const Tag &tag)
{
    const std::string &uid = required(tag, "uid");
    int id = 0;
    const auto [ptr, ec] = std::from_chars(uid.data(), uid.data() + uid.size(), id);
    if (ec != std::errc() || ptr != uid.data() + uid.size() || id <= 0 || id > 9'999'999)
        throw std::runtime_error("food uid is not a food number: \"" + uid + "\"");
    return id;
}

} // namespace

std::optional<SourceFood> parseFoodXml(std::string_view xml)
{
    std::optional<SourceFood> food;
    std::size_t at = 0;
    while ((at = xml.find('<', at)) != std::string_view::npos) {
        if (xml.substr(at, 2) == "</" || xml.substr(at, 2) == "<?" || xml.substr(at, 2) == "<!") {
            const auto end = xml.substr(at, 4) == "<!--" ? xml.find("-->", at) : xml.find('>', at);
            if (end == std::string_view::npos)
                throw std::runtime_error("unterminated markup");
            at = end + 1;
            continue;
        }
        const Tag tag = readTag(xml, at);
        if (tag.name == "food") {
            if (food)
                throw std::runtime_error("more than one food in one file");
            food.emplace();
            food->id = foodId(tag);
            food->name = required(tag, "name");
            if (food->name.empty())
                throw std::runtime_error("food " + std::to_string(food->id) + " has no name");
        } else if (tag.name == "measure" && food) {
            SourceMeasure measure{number(tag, "amount"), required(tag, "name"), number(tag, "grams")};
            if (measure.grams < 0 || measure.amount <= 0)
                throw std::runtime_error("measure \"" + measure.name + "\" has no positive weight");
            food->measures.push_back(std::move(measure));
        } else if (tag.name == "nutrient" && food) {
            food->nutrients.push_back({required(tag, "name"), number(tag, "amount")});
        }
    }
    return food;
}

} // namespace foodservice
