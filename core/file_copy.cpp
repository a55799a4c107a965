#include "core/file_copy.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <vector>

namespace talmo {
namespace {

constexpr std::size_t kChunkSize = 1 << 16;
constexpr int kMaxLinkHops = 40;

mode_t current_umask() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return mask;
}

std::string directory_of(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "" : path.substr(0, slash + 1);
}

// The file a chain of symbolic links at `path` ends in (`path` itself when it is no link); the
// end may not exist yet. Gives "" for a loop of links.
std::string link_target(std::string path) {
  for (int hop = 0; hop < kMaxLinkHops; ++hop) {
    struct stat info {};
    if (::lstat(path.c_str(), &info) != 0 || !S_ISLNK(info.st_mode))
      return path;
    std::vector<char> buffer(PATH_MAX);
    const ssize_t length = ::readlink(path.c_str(), buffer.data(), buffer.size() - 1);
    if (length <= 0)
      return path;
    std::string target(buffer.data(), static_cast<std::size_t>(length));
    path = target.front() == '/' ? target : directory_of(path) + target;
  }
  return "";
}

bool write_all(int fd, const char* data, std::size_t size) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t written = ::write(fd, data + done, size - done);
    if (written < 0) {
      if (errno == EINTR)
        continue;
      return false;
    }
    done += static_cast<std::size_t>(written);
  }
  return true;
}

bool copy_content(FileReader& source, int fd) {
  source.rewind();
  std::vector<char> buffer(kChunkSize);
  for (;;) {
    const std::size_t got = source.read(buffer.data(), buffer.size());
    if (got == 0)
      return true;
    if (!write_all(fd, buffer.data(), got))
      return false;
  }
}

// Gives the temporary file the old file's mode and, where allowed, its owner and group. The
// owner is best effort: an unprivileged run cannot give a file away, and the kept mode is what
// lets the web server read it.
bool take_over_attributes(int fd, const std::string& target) {
  struct stat existing {};
  if (::stat(target.c_str(), &existing) != 0)
    return ::fchmod(fd, 0666 & ~current_umask()) == 0;
  if (existing.st_uid != ::geteuid() || existing.st_gid != ::getegid()) {
    if (::fchown(fd, existing.st_uid, existing.st_gid) != 0)
      (void)::fchown(fd, static_cast<uid_t>(-1), existing.st_gid);
  }
  return ::fchmod(fd, existing.st_mode & 07777) == 0;
}

}  // namespace

void replace_with_copy(FileReader& source, const std::string& destination) {
  const std::string target = link_target(destination);
  if (target.empty())
    throw FileError(destination);
  const std::size_t slash = target.rfind('/');
  const std::string name = slash == std::string::npos ? target : target.substr(slash + 1);
  std::string temp_path = directory_of(target) + "." + name + ".tmp-XXXXXX";
  const int fd = ::mkstemp(temp_path.data());
  if (fd < 0)
    throw FileError(destination);

  bool ok = false;
  try {
    ok = copy_content(source, fd) && take_over_attributes(fd, target) && ::fsync(fd) == 0;
  } catch (const FileReadError&) {
    ::close(fd);
    ::unlink(temp_path.c_str());
    throw;
  }
  const bool closed = ::close(fd) == 0;
  if (!ok || !closed || ::rename(temp_path.c_str(), target.c_str()) != 0) {
    ::unlink(temp_path.c_str());
    throw FileError(destination);
  }
}

}  // namespace talmo
