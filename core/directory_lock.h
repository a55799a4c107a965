#pragma once

#include <string>

namespace talmo {

// An exclusive lock on a directory, held while the object lives and released by the kernel when
// the process ends, however it ends; no lock file is made, so none is ever left behind. It keeps
// two runs of the tool in one directory from writing the same feeds at once.
class DirectoryLock {
 public:
  // Tries once, without waiting. held() tells whether it succeeded.
  explicit DirectoryLock(const std::string& directory);
  ~DirectoryLock();
  DirectoryLock(const DirectoryLock&) = delete;
  DirectoryLock& operator=(const DirectoryLock&) = delete;

  bool held() const { return held_; }

 private:
  int fd_ = -1;
  bool held_ = false;
};

}  // namespace talmo
