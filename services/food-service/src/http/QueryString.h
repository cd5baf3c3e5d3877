#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace foodservice {

// Decodes %XX escapes (either case of hex digit). "+" stays "+": clients send a
// space as %20. Nothing for a malformed escape.
[[nodiscard]] std::optional<std::string> percentDecode(std::string_view text);

// Encodes for a query component: letters, digits and "-._~" stay, all else is %XX.
[[nodiscard]] std::string percentEncode(std::string_view text);

// Splits "a=1&b=2" into decoded pairs, in order; nothing when an escape is malformed.
[[nodiscard]] std::optional<std::vector<std::pair<std::string, std::string>>>
parseQueryString(std::string_view query);

} // namespace foodservice
