#include "http/Parameters.h"

#include "http/HttpError.h"
#include "http/QueryString.h"

#include <charconv>
#include <cmath>

namespace foodservice {
namespace {

// A tonne: far above any portion, and low enough that amounts stay finite.
constexpr double largestAmount = 1'000'000;

} // namespace

Parameters::Parameters(std::string_view rawQuery)
{
    const auto pairs = parseQueryString(rawQuery);
    if (!pairs)
        throw HttpError(400, "malformed percent escape in the query string");
    for (const auto &[key, value] : *pairs)
        m_values.emplace(key, value);
}

std::string Parameters::text(const std::string &name) const
{
    const auto found = m_values.find(name);
    return found == m_values.end() ? std::string() : found->second;
}

std::int64_t Parameters::integer(const std::string &name, std::int64_t fallback, std::int64_t minimum,
                                 std::int64_t maximum) const
{
    const auto found = m_values.find(name);
    if (found == m_values.end())
        return fallback;
    const std::string &value = found->second;
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (value.empty() || error != std::errc() || end != value.data() + value.size())
        throw HttpError(400, name + " must be an integer", name);
    if (number < minimum || number > maximum)
        throw HttpError(
            400, name + " must be between " + std::to_string(minimum) + " and " + std::to_string(maximum),
            name);
    return number;
}

double Parameters::amount(const std::string &name) const
{
    const auto found = m_values.find(name);
    if (found == m_values.end())
        throw HttpError(400, name + " is required", name);
    const std::string &value = found->second;
    double number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (value.empty() || error != std::errc() || end != value.data() + value.size() ||
        !std::isfinite(number) || number < 0 || number > largestAmount)
        throw HttpError(400, name + " must be a number from 0 to 1000000", name);
    // "-0" reads as a negative zero, which would print as -0.0.
    return number == 0 ? 0.0 : number;
}

} // namespace foodservice
