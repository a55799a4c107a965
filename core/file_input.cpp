#include "core/file_input.h"

#include <sys/stat.h>

#include "core/file_reader.h"

namespace talmo {

PathFacts path_facts(const std::string& path) {
  struct stat info {};
  if (::stat(path.c_str(), &info) != 0)
    return PathFacts{};
  return PathFacts{true, S_ISREG(info.st_mode), static_cast<std::uint64_t>(info.st_size)};
}

std::optional<std::string> read_whole_file(const std::string& path) {
  FileReader reader(path);
  if (!reader.is_open())
    return std::nullopt;
  std::string content;
  char buffer[4096];
  try {
    for (std::size_t got; (got = reader.read(buffer, sizeof buffer)) > 0;)
      content.append(buffer, got);
  } catch (const FileReadError&) {
    return std::nullopt;
  }
  return content;
}

}  // namespace talmo
