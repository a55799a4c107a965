#include "core/directory_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace talmo {

DirectoryLock::DirectoryLock(const std::string& directory) {
  fd_ = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  held_ = fd_ >= 0 && ::flock(fd_, LOCK_EX | LOCK_NB) == 0;
}

DirectoryLock::~DirectoryLock() {
  if (fd_ >= 0)
    ::close(fd_);
}

}  // namespace talmo
