#pragma once

#include "source/SourceFood.h"

#include <optional>
#include <string_view>

namespace foodservice {

// Parses one food file (<food uid=".." name=".."><measure/>..<nutrient/>..</food>) with expat.
// Returns nothing for an XML file without a food element; throws std::runtime_error
// when the XML or its food element is malformed, truncated or declares entities.
[[nodiscard]] std::optional<SourceFood> parseFoodXml(std::string_view xml);

} // namespace foodservice
