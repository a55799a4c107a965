#include "core/system.h"

#include <limits.h>
#include <unistd.h>
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

std::optional<std::string> environment_variable(const char* name) {
  const char* value = std::getenv(name);
  if (value == nullptr)
    return std::nullopt;
  return std::string(value);
}

std::int64_t clock_milliseconds() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

}  // namespace talmo
