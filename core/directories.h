#pragma once

#include <string>

namespace talmo {

// Whether `path` is an existing directory (links followed).
bool is_directory(const std::string& path);

// Creates the directory `path` (0777 less the umask) unless a directory is there already.
// False when it is missing and cannot be made; the parent must exist.
bool make_directory(const std::string& path);

// Whether both paths name the same existing file or directory, whatever way they are written.
bool same_file(const std::string& a, const std::string& b);

}  // namespace talmo
