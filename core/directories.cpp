#include "core/directories.h"

#include <sys/stat.h>
#include <cerrno>

namespace talmo {

bool is_directory(const std::string& path) {
  struct stat info {};
  return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool make_directory(const std::string& path) {
  if (::mkdir(path.c_str(), 0777) == 0)
    return true;
  return errno == EEXIST && is_directory(path);
}

bool same_file(const std::string& a, const std::string& b) {
  struct stat first {};
  struct stat second {};
  return ::stat(a.c_str(), &first) == 0 && ::stat(b.c_str(), &second) == 0 &&
         first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

}  // namespace talmo
