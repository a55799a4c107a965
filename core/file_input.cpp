#include "core/file_input.h"

#include <fcntl.h>
#include <unistd.h>
#include <cerrno>

namespace talmo {

std::optional<std::string> read_whole_file(const std::string& path) {
  const int fd = ::open(path.c_str(), O_RDONLY);
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
