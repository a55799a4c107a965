#pragma once

#include <optional>
#include <string>

namespace talmo {

// The whole content of the file at `path`, or nullopt when it cannot be opened or read (a
// directory included).
std::optional<std::string> read_whole_file(const std::string& path);

}  // namespace talmo
