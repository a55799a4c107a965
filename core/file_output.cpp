#include "core/file_output.h"

#include <dirent.h>
#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>

#include "core/errors.h"

namespace talmo {
namespace {

// Lines are gathered up to this size before one write.
constexpr std::size_t kBufferSize = 1 << 16;
// mkstemp's six characters after this.
constexpr std::string_view kTemporaryMark = ".tmp-";

mode_t current_umask() {
  const mode_t mask = umask(0);
  umask(mask);
  return mask;
}

bool write_all(int fd, std::string_view data) {
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

std::string directory_of(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "" : path.substr(0, slash + 1);
}

std::string name_of(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

// Where `path` finally points: links followed one by one (a relative target counts from the
// link's directory), stopping at the first name that is not a link, existing or not. Gives up
// after 40 links, as the kernel does, leaving the last name.
std::string final_target(std::string path) {
  for (int hops = 0; hops < 40; ++hops) {
    struct stat info {};
    if (::lstat(path.c_str(), &info) != 0 || !S_ISLNK(info.st_mode))
      return path;
    char buffer[PATH_MAX];
    const ssize_t length = ::readlink(path.c_str(), buffer, sizeof buffer);
    if (length <= 0 || static_cast<std::size_t>(length) >= sizeof buffer)
      return path;
    std::string target(buffer, static_cast<std::size_t>(length));
    path = target.front() == '/' ? target : directory_of(path) + target;
  }
  return path;
}

void report_reason(const std::string& path, int error) {
  std::cerr << "Unable to create file \"" << path << "\": " << std::strerror(error) << std::endl;
}

// Whether `entry` is a temporary file of ReplacingFile for the file named `name`.
bool is_temporary_of(const std::string& entry, const std::string& name) {
  const std::string prefix = "." + name + std::string(kTemporaryMark);
  if (entry.size() != prefix.size() + 6 || entry.compare(0, prefix.size(), prefix) != 0)
    return false;
  for (std::size_t i = prefix.size(); i < entry.size(); ++i) {
    const unsigned char c = static_cast<unsigned char>(entry[i]);
    if (!std::isalnum(c))
      return false;
  }
  return true;
}

}  // namespace

ReplacingFile::ReplacingFile(std::string path)
    : path_(std::move(path)), target_(final_target(path_)) {
  temp_path_ =
      directory_of(target_) + "." + name_of(target_) + std::string(kTemporaryMark) + "XXXXXX";
  fd_ = ::mkstemp(temp_path_.data());
  temp_created_ = fd_ >= 0;
  if (!temp_created_)
    error_ = errno;
  buffer_.reserve(kBufferSize);
}

ReplacingFile::~ReplacingFile() {
  if (fd_ >= 0)
    ::close(fd_);
  if (temp_created_ && !committed_)
    ::unlink(temp_path_.c_str());
}

void ReplacingFile::fail() {
  if (error_ == 0)
    error_ = errno != 0 ? errno : EIO;
}

void ReplacingFile::write_line(std::string_view line) {
  write_bytes(line);
  write_bytes("\n");
}

void ReplacingFile::write_bytes(std::string_view bytes) {
  if (error_ != 0)
    return;
  buffer_.append(bytes);
  if (buffer_.size() >= kBufferSize)
    flush_buffer();
}

void ReplacingFile::flush_buffer() {
  if (error_ == 0 && !write_all(fd_, buffer_))
    fail();
  buffer_.clear();
}

void ReplacingFile::commit() {
  flush_buffer();
  if (error_ == 0) {
    mode_t mode = 0666 & ~current_umask();
    struct stat existing {};
    const bool exists = ::stat(target_.c_str(), &existing) == 0;
    if (exists)
      mode = existing.st_mode & 07777;
    if (exists && ::geteuid() == 0 && ::fchown(fd_, existing.st_uid, existing.st_gid) != 0)
      fail();
    if (error_ == 0 && (::fchmod(fd_, mode) != 0 || ::fsync(fd_) != 0))
      fail();
  }
  if (fd_ >= 0 && ::close(fd_) != 0)
    fail();
  fd_ = -1;
  if (error_ == 0 && ::rename(temp_path_.c_str(), target_.c_str()) != 0)
    fail();
  if (error_ != 0) {
    report_reason(path_, error_);
    throw FileError(path_);  // the destructor removes the temporary file
  }
  committed_ = true;
}

void save_lines(const std::string& path, const StringList& lines) {
  ReplacingFile file(path);
  for (const std::string& line : lines)
    file.write_line(line);
  file.commit();
}

void overwrite_lines(const std::string& path, const StringList& lines, mode_t create_mode) {
  std::string data;
  for (const std::string& line : lines)
    data += line + "\n";
  const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, create_mode);
  bool ok = fd >= 0 && write_all(fd, data) && ::fsync(fd) == 0;
  int error = ok ? 0 : errno;
  if (fd >= 0 && ::close(fd) != 0 && ok) {
    ok = false;
    error = errno;
  }
  if (!ok) {
    report_reason(path, error);
    throw FileError(path);
  }
}

void remove_leftover_temporary_files(const std::string& path) {
  const std::string target = final_target(path);
  const std::string directory = directory_of(target);
  const std::string name = name_of(target);
  DIR* listing = ::opendir(directory.empty() ? "." : directory.c_str());
  if (listing == nullptr)
    return;
  while (const dirent* entry = ::readdir(listing)) {
    if (is_temporary_of(entry->d_name, name))
      ::unlinkat(::dirfd(listing), entry->d_name, 0);
  }
  ::closedir(listing);
}

}  // namespace talmo
