#include "core/file_output.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>

#include "core/errors.h"

namespace talmo {
namespace {

// Lines are gathered up to this size before one write.
constexpr std::size_t kBufferSize = 1 << 16;

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

}  // namespace

ReplacingFile::ReplacingFile(std::string path, std::optional<mode_t> mode)
    : path_(std::move(path)), mode_(mode) {
  const std::size_t slash = path_.rfind('/');
  const std::string dir = slash == std::string::npos ? "" : path_.substr(0, slash + 1);
  const std::string name = slash == std::string::npos ? path_ : path_.substr(slash + 1);
  temp_path_ = dir + "." + name + ".tmp-XXXXXX";
  fd_ = ::mkstemp(temp_path_.data());
  temp_created_ = fd_ >= 0;
  failed_ = !temp_created_;
  buffer_.reserve(kBufferSize);
}

ReplacingFile::~ReplacingFile() {
  if (fd_ >= 0)
    ::close(fd_);
  if (temp_created_ && !committed_)
    ::unlink(temp_path_.c_str());
}

void ReplacingFile::write_line(std::string_view line) {
  if (failed_)
    return;
  buffer_.append(line);
  buffer_ += '\n';
  if (buffer_.size() >= kBufferSize)
    flush_buffer();
}

void ReplacingFile::flush_buffer() {
  if (!failed_ && !write_all(fd_, buffer_))
    failed_ = true;
  buffer_.clear();
}

void ReplacingFile::commit() {
  flush_buffer();
  mode_t mode = 0666 & ~current_umask();
  struct stat existing {};
  if (mode_) {
    mode = *mode_;
  } else if (::stat(path_.c_str(), &existing) == 0) {
    mode = existing.st_mode & 07777;
  }
  const bool written = !failed_ && ::fchmod(fd_, mode) == 0 && ::fsync(fd_) == 0;
  const bool closed = fd_ >= 0 && ::close(fd_) == 0;
  fd_ = -1;
  if (!written || !closed || ::rename(temp_path_.c_str(), path_.c_str()) != 0) {
    failed_ = true;
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

void save_lines_with_mode(const std::string& path, const StringList& lines, mode_t mode) {
  ReplacingFile file(path, mode);
  for (const std::string& line : lines)
    file.write_line(line);
  file.commit();
}

}  // namespace talmo
