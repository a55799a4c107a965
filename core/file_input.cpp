#include "core/file_input.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>

namespace talmo {

PathFacts path_facts(const std::string& path) {
  struct stat info {};
  if (::stat(path.c_str(), &info) != 0)
    return PathFacts{};
  return PathFacts{true, S_ISREG(info.st_mode), static_cast<std::uint64_t>(info.st_size)};
}

std::optional<std::string> read_whole_file(const std::string& path) {
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (fd < 0)
    return std::nullopt;
  std::string content;
  char buffer[4096];
  for (;;) {
    const ssize_t got = ::read(fd, buffer, sizeof buffer);
    if (got < 0 && errno == EINTR)
      continue;
    if (got < 0) {
      ::close(fd);
      return std::nullopt;
    }
    if (got == 0)
      break;
    content.append(buffer, static_cast<std::size_t>(got));
  }
  ::close(fd);
  return content;
}

}  // namespace talmo
