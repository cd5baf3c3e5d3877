#include "catalog/PortionText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace foodservice {
namespace {

std::string shortestDecimal(double value)
{
    std::array<char, 32> buffer{};
    const auto [end, ec] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return ec == std::errc() ? std::string(buffer.data(), end) : std::string("1");
}

// Amounts in the data are written to two or three decimals (0.33 for a third).
std::string readableAmount(double amount)
{
    constexpr double tolerance = 0.011;
    const double whole = std::floor(amount + tolerance);
    const double fraction = amount - whole;
    if (std::abs(fraction) < tolerance)
        return shortestDecimal(whole);
    for (const int denominator : {2, 3, 4, 8}) {
        const double numerator = std::round(fraction * denominator);
        if (numerator > 0 && std::abs(fraction - numerator / denominator) < tolerance) {
            const std::string part =
                std::to_string(static_cast<int>(numerator)) + "/" + std::to_string(denominator);
            return whole > 0 ? shortestDecimal(whole) + " " + part : part;
        }
    }
    return shortestDecimal(amount);
}

// A whole or decimal number ("2", "0.33") or a fraction ("3/4") filling the whole word.
std::optional<double> amountWord(std::string_view word)
{
    const auto slash = word.find('/');
    const auto number = [](std::string_view text) -> std::optional<double> {
        double value = 0;
        const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (text.empty() || ec != std::errc() || end != text.data() + text.size() || !(value >= 0))
            return std::nullopt;
        return value;
    };
    if (slash == std::string_view::npos)
        return number(word);
    const auto numerator = number(word.substr(0, slash));
    const auto denominator = number(word.substr(slash + 1));
    if (!numerator || !denominator || *denominator == 0)
        return std::nullopt;
    return *numerator / *denominator;
}

} // namespace

double leadingAmount(std::string_view description)
{
    const auto firstEnd = description.find(' ');
    const auto first = amountWord(description.substr(0, firstEnd));
    if (!first)
        return 1;
    if (firstEnd == std::string_view::npos ||
        description.substr(0, firstEnd).find('/') != std::string_view::npos)
        return *first;
    const auto rest = description.substr(firstEnd + 1);
    const auto second = rest.substr(0, rest.find(' '));
    // "1 1/2": a whole number and a fraction.
    if (second.find('/') != std::string_view::npos) {
        if (const auto fraction = amountWord(second))
            return *first + *fraction;
    }
    return *first;
}

std::string portionDescription(double amount, std::string_view measureName)
{
    std::string text = readableAmount(amount);
    if (!measureName.empty()) {
        text += ' ';
        text += measureName;
    }
    return text;
}

int portionGrams(double grams)
{
    const double rounded = std::round(grams);
    if (!(rounded >= 1))
        return 1;
    return rounded > 1e9 ? 1'000'000'000 : static_cast<int>(rounded);
}

} // namespace foodservice
