#pragma once

#include "picture/Canvas.h"

#include <string>

namespace foodservice {

// The canvas as a PNG file (8-bit RGB, no interlacing).
[[nodiscard]] std::string encodePng(const Canvas &canvas);

} // namespace foodservice
