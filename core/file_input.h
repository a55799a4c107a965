#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace talmo {

// What stands at a path, links followed.
struct PathFacts {
  bool exists = false;
  bool regular = false;  // a plain file (not a directory, FIFO, socket or device)
  std::uint64_t size = 0;
};
PathFacts path_facts(const std::string& path);

// The whole content of the file at `path`, or nullopt when it cannot be opened or read (a
// directory included). Call it only for a regular file: a FIFO would block the open.
std::optional<std::string> read_whole_file(const std::string& path);

}  // namespace talmo
