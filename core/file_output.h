#pragma once

#include <sys/types.h>
#include <optional>
#include <string>
#include <string_view>

#include "core/strings.h"

namespace talmo {

// A file that replaces `path` only once it is complete: its lines go to a temporary file beside
// it (".NAME.tmp-XXXXXX"), and commit() flushes that to disk and renames it over the old file, so
// a failure or an interrupted run leaves the previous file as it was. A feed is written so as its
// items are produced, without holding the whole file in memory.
class ReplacingFile {
 public:
  // Creates the temporary file. A failure is kept, not raised, and reported by commit(): the
  // shop's console reports a file that cannot be written at the save, after the progress lines.
  // The finished file gets `mode` when given; otherwise an existing file keeps its mode (the web
  // server reading the feeds relies on it) and a new one gets 0666 less the umask.
  explicit ReplacingFile(std::string path, std::optional<mode_t> mode = std::nullopt);
  // Removes the temporary file unless it was committed.
  ~ReplacingFile();
  ReplacingFile(const ReplacingFile&) = delete;
  ReplacingFile& operator=(const ReplacingFile&) = delete;

  // Appends `line` and "\n". Write errors are kept for commit().
  void write_line(std::string_view line);

  // Flushes, sets the mode, syncs and renames the temporary file over `path`. Raises FileError
  // (`Unable to create file "path"`, naming the final file) on this or any earlier failure.
  void commit();

 private:
  void flush_buffer();

  std::string path_;
  std::optional<mode_t> mode_;
  std::string temp_path_;
  int fd_ = -1;
  bool temp_created_ = false;
  bool failed_ = false;
  bool committed_ = false;
  std::string buffer_;
};

// Writes `lines` to `path` through a ReplacingFile, each followed by "\n", the last included.
// Raises FileError on any failure.
void save_lines(const std::string& path, const StringList& lines);

// As save_lines, but the file always gets `mode` (config.dat holds the password in clear).
void save_lines_with_mode(const std::string& path, const StringList& lines, mode_t mode);

}  // namespace talmo
