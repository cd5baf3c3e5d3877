#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace foodservice {

// The query parameters of one request. Every accessor throws HttpError 400 naming
// the parameter when its value is malformed. A repeated parameter keeps its first value.
class Parameters
{
public:
    // Throws HttpError 400 when the query string has a malformed escape.
    explicit Parameters(std::string_view rawQuery);

    // "" when absent.
    [[nodiscard]] std::string text(const std::string &name) const;
    // A whole decimal number in [minimum, maximum]; `fallback` when absent.
    [[nodiscard]] std::int64_t integer(const std::string &name, std::int64_t fallback, std::int64_t minimum,
                                       std::int64_t maximum) const;
    // A decimal number from 0 to 1000000; required.
    [[nodiscard]] double amount(const std::string &name) const;

private:
    std::map<std::string, std::string> m_values;
};

} // namespace foodservice
