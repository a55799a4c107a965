#include "core/file_output.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>
#include <optional>

#include "core/errors.h"

namespace talmo {
namespace {

mode_t current_umask() {
  const mode_t mask = umask(0);
  umask(mask);
  return mask;
}

bool write_all(int fd, const std::string& data) {
  std::size_t done = 0;
  while (done < data.size()) {
    const ssize_t written = ::write(fd, data.data() + done, data.size() - done);
    if (written < 0) {
      if (errno == EINTR)
        continue;
      return false;
    }
    done += static_cast<std::size_t>(written);
  }
  return true;
}

void save(const std::string& path, const StringList& lines, std::optional<mode_t> forced_mode) {
  mode_t mode = 0666 & ~current_umask();
  struct stat existing {};
  if (forced_mode) {
    mode = *forced_mode;
  } else if (::stat(path.c_str(), &existing) == 0) {
    mode = existing.st_mode & 07777;
  }

  const std::size_t slash = path.rfind('/');
  const std::string dir = slash == std::string::npos ? "" : path.substr(0, slash + 1);
  const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  std::string temp_path = dir + "." + name + ".tmp-XXXXXX";
  const int fd = ::mkstemp(temp_path.data());
  if (fd < 0)
    throw FileError(path);

  std::string data;
  for (const std::string& line : lines)
    data += line + "\n";
  const bool ok = write_all(fd, data) && ::fchmod(fd, mode) == 0 && ::fsync(fd) == 0;
  const bool closed = ::close(fd) == 0;
  if (!ok || !closed || ::rename(temp_path.c_str(), path.c_str()) != 0) {
    ::unlink(temp_path.c_str());
    throw FileError(path);
  }
}

}  // namespace

void save_lines(const std::string& path, const StringList& lines) {
  save(path, lines, std::nullopt);
}

void save_lines_with_mode(const std::string& path, const StringList& lines, mode_t mode) {
  save(path, lines, mode);
}

}  // namespace talmo
