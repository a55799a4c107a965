#include "core/system.h"

#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <unistd.h>
#include <cerrno>
#include <chrono>
#include <cstdlib>

namespace talmo {

std::string executable_path() {
  char buffer[PATH_MAX];
  const ssize_t length = ::readlink("/proc/self/exe", buffer, sizeof buffer - 1);
  return length > 0 ? std::string(buffer, static_cast<std::size_t>(length)) : std::string();
}

std::string executable_directory() {
  const std::string path = executable_path();
  std::string directory = path.substr(0, path.rfind('/') + 1);
  if (directory.empty() || directory.back() != '/')
    directory += '/';
  return directory;
}

std::int64_t clock_milliseconds() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

void reopen_closed_standard_streams() {
  for (int fd = 0; fd <= 2; ++fd) {
    if (::fcntl(fd, F_GETFD) != -1 || errno != EBADF)
      continue;
    // open() takes the lowest free number, which is this one.
    const int opened = ::open("/dev/null", fd == 0 ? O_RDONLY : O_WRONLY);
    if (opened >= 0 && opened != fd)
      ::close(opened);
  }
}

void ignore_broken_pipes() {
  ::signal(SIGPIPE, SIG_IGN);
}

std::optional<std::string> environment_value(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

}  // namespace talmo
