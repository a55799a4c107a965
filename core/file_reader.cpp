#include "core/file_reader.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>

namespace talmo {

FileReader::FileReader(const std::string& path) : path_(path) {
  // Not blocking: a named pipe put where a feed belongs must not hang the checker.
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (fd < 0) {
    missing_ = errno == ENOENT;
    problem_ = std::strerror(errno);
    return;
  }
  struct stat info {};
  if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
    problem_ = S_ISDIR(info.st_mode) ? std::strerror(EISDIR) : "Not a regular file";
    ::close(fd);
    return;
  }
  ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) & ~O_NONBLOCK);
  fd_ = fd;
}

FileReader::~FileReader() {
  if (fd_ >= 0)
    ::close(fd_);
}

std::size_t FileReader::read(char* buffer, std::size_t size) {
  if (fd_ < 0)
    throw FileReadError(path_);
  for (;;) {
    const ssize_t got = ::read(fd_, buffer, size);
    if (got >= 0)
      return static_cast<std::size_t>(got);
    if (errno != EINTR)
      throw FileReadError(path_);
  }
}

void FileReader::rewind() {
  if (fd_ < 0 || ::lseek(fd_, 0, SEEK_SET) != 0)
    throw FileReadError(path_);
}

}  // namespace talmo
