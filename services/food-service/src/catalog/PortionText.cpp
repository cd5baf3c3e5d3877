#include "catalog/PortionText.h"

#include <array>
#include <charconv>
#include <cmath>

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

} // namespace

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
