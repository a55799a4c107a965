#pragma once

#include <cstddef>
#include <string>

#include "core/errors.h"

namespace talmo {

// A file could not be read after it was opened. The message names the file.
class FileReadError : public TalmoError {
 public:
  explicit FileReadError(const std::string& full_path)
      : TalmoError("Unable to read file \"" + full_path + "\"") {}
};

// A file opened read-only and read in chunks from its start. The feed checker reads a feed
// through one reader to check it and again, rewound, to publish it: the same open file both
// times, so what it publishes is what it checked even if the export replaces the file meanwhile.
class FileReader {
 public:
  // Opens `path` for reading. A missing file, a directory or a file that cannot be opened leaves
  // the reader closed: see is_open(), is_missing() and problem().
  explicit FileReader(const std::string& path);
  ~FileReader();
  FileReader(const FileReader&) = delete;
  FileReader& operator=(const FileReader&) = delete;

  bool is_open() const { return fd_ >= 0; }
  // True when nothing exists at the path (a broken link included).
  bool is_missing() const { return missing_; }
  // Why the file is not open, in the system's words ("Permission denied"); "" when it is open.
  const std::string& problem() const { return problem_; }
  const std::string& path() const { return path_; }

  // Reads up to `size` bytes into `buffer`; returns how many, 0 at the end of the file.
  // Raises FileReadError when the file cannot be read.
  std::size_t read(char* buffer, std::size_t size);
  // Starts reading from the beginning again. Raises FileReadError when that fails.
  void rewind();

 private:
  std::string path_;
  int fd_ = -1;
  bool missing_ = false;
  std::string problem_;
};

}  // namespace talmo
