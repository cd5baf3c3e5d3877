#pragma once

#include <string_view>

namespace foodservice {

// The tables kept as data in the repository (data/*.json), built into the program.
[[nodiscard]] std::string_view foodGroupTable();
[[nodiscard]] std::string_view pairingTable();
[[nodiscard]] std::string_view eatenFormTable();
[[nodiscard]] std::string_view searchWordTable();
[[nodiscard]] std::string_view foodPictureTable();

} // namespace foodservice
