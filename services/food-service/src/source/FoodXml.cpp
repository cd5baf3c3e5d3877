#include "source/FoodXml.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <expat.h>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>

namespace foodservice {
namespace {

using Attributes = const XML_Char **;

// Expat calls back into C++ from C: the callbacks record the first problem and stop
// the parser instead of throwing through it.
struct FoodReader
{
    XML_Parser parser = nullptr;
    std::optional<SourceFood> food;
    std::string problem;

    void fail(std::string why)
    {
        if (problem.empty())
            problem = std::move(why);
        XML_StopParser(parser, XML_FALSE);
    }
    void startElement(std::string_view name, Attributes attributes);
};

const char *attribute(Attributes attributes, std::string_view name)
{
    for (auto at = attributes; *at != nullptr; at += 2) {
        if (name == at[0])
            return at[1];
    }
    return nullptr;
}

// Each reader throws std::invalid_argument with the reason, caught in startElement.
std::string required(std::string_view element, Attributes attributes, std::string_view name)
{
    const char *value = attribute(attributes, name);
    if (value == nullptr)
        throw std::invalid_argument("<" + std::string(element) + "> lacks " + std::string(name));
    return value;
}

double number(std::string_view element, Attributes attributes, std::string_view name)
{
    const std::string text = required(element, attributes, name);
    double value = 0;
    const auto [ptr, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec != std::errc() || ptr != text.data() + text.size() || !std::isfinite(value))
        throw std::invalid_argument("<" + std::string(element) + "> " + std::string(name) +
                                    " is not a number: \"" + text + "\"");
    return value;
}

int foodId(Attributes attributes)
{
    const std::string uid = required("food", attributes, "uid");
    int id = 0;
    const auto [ptr, ec] = std::from_chars(uid.data(), uid.data() + uid.size(), id);
    if (ec != std::errc() || ptr != uid.data() + uid.size() || id <= 0 || id > 9'999'999)
        throw std::invalid_argument("food uid is not a food number: \"" + uid + "\"");
    return id;
}

void FoodReader::startElement(std::string_view name, Attributes attributes)
{
    try {
        if (name == "food") {
            if (food)
                throw std::invalid_argument("more than one food in one file");
            food.emplace();
            food->id = foodId(attributes);
            food->name = required(name, attributes, "name");
            if (food->name.empty())
                throw std::invalid_argument("food " + std::to_string(food->id) + " has no name");
        } else if (name == "measure" && food) {
            SourceMeasure measure{number(name, attributes, "amount"), required(name, attributes, "name"),
                                  number(name, attributes, "grams")};
            if (measure.grams < 0 || measure.amount <= 0)
                throw std::invalid_argument("measure \"" + measure.name + "\" has no positive weight");
            food->measures.push_back(std::move(measure));
        } else if (name == "nutrient" && food) {
            food->nutrients.push_back(
                {required(name, attributes, "name"), number(name, attributes, "amount")});
        }
    } catch (const std::exception &error) {
        fail(error.what());
    }
}

// Errors that mean the text stopped before the document was complete.
bool endsEarly(XML_Error code)
{
    return code == XML_ERROR_UNCLOSED_TOKEN || code == XML_ERROR_NO_ELEMENTS ||
           code == XML_ERROR_PARTIAL_CHAR || code == XML_ERROR_UNCLOSED_CDATA_SECTION;
}

} // namespace

std::optional<SourceFood> parseFoodXml(std::string_view xml)
{
    FoodReader reader;
    const std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(XML_ParserCreate(nullptr),
                                                                         XML_ParserFree);
    if (!parser)
        throw std::runtime_error("out of memory for the XML parser");
    reader.parser = parser.get();
    XML_SetUserData(parser.get(), &reader);
    XML_SetStartElementHandler(parser.get(), [](void *data, const XML_Char *name, Attributes attributes) {
        static_cast<FoodReader *>(data)->startElement(name, attributes);
    });
    // Food data declares no entities; a declaration is how an entity expansion bomb starts.
    XML_SetEntityDeclHandler(parser.get(), [](void *data, const XML_Char *name, int, const XML_Char *, int,
                                              const XML_Char *, const XML_Char *, const XML_Char *,
                                              const XML_Char *) {
        static_cast<FoodReader *>(data)->fail("declares the entity \"" + std::string(name) +
                                              "\"; food data uses no entity declarations");
    });

    if (xml.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw std::runtime_error("too large for the XML parser");
    const auto status = XML_Parse(parser.get(), xml.data(), static_cast<int>(xml.size()), XML_TRUE);
    if (!reader.problem.empty())
        throw std::runtime_error(reader.problem);
    if (status != XML_STATUS_OK) {
        const XML_Error code = XML_GetErrorCode(parser.get());
        const std::string where = "line " + std::to_string(XML_GetCurrentLineNumber(parser.get())) +
                                  ", column " + std::to_string(XML_GetCurrentColumnNumber(parser.get()) + 1);
        if (xml.find_first_not_of(" \t\r\n") == std::string_view::npos)
            throw std::runtime_error("unterminated XML: the file is empty");
        if (endsEarly(code))
            throw std::runtime_error("unterminated XML: the file ends early (truncated?) at " + where);
        throw std::runtime_error("malformed XML at " + where + ": " + XML_ErrorString(code));
    }
    return std::move(reader.food);
}

} // namespace foodservice
