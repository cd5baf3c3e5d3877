#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace foodservice {

// Calls visit(name, content) for every XML file of the food data, in name order; the name
// is the file's path, or the archive's path and the member's name.
// The source is a zip or jar archive, or a folder searched recursively.
// Throws std::runtime_error when the source cannot be read or a file is far too large.
void forEachSourceFile(const std::string &source,
                       const std::function<void(const std::string &, std::string_view)> &visit);

} // namespace foodservice
