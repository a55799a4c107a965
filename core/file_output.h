#pragma once

#include <sys/types.h>
#include <optional>
#include <string>
#include <string_view>

#include "core/strings.h"

namespace talmo {

// A file that replaces `path` only once it is complete: its lines go to a temporary file beside
// the file's final location (".NAME.tmp-XXXXXX"), and commit() flushes that to disk and renames it
// over the old file, so a failure or an interrupted run leaves the previous file as it was. A feed
// is written so as its items are produced, without holding the whole file in memory.
//
// A `path` that is a symbolic link is followed to where it finally points, and that file is
// replaced (a dangling link gets its target created): the web server may serve the feeds through
// links. The finished file keeps the mode of the file it replaces, and its owner and group when
// the tool runs as root; a new file gets 0666 less the umask.
class ReplacingFile {
 public:
  // Creates the temporary file. A failure is kept, not raised, and reported by commit(): the
  // shop's console reports a file that cannot be written at the save, after the progress lines.
  explicit ReplacingFile(std::string path);
  // Removes the temporary file unless it was committed.
  ~ReplacingFile();
  ReplacingFile(const ReplacingFile&) = delete;
  ReplacingFile& operator=(const ReplacingFile&) = delete;

  // Appends `line` and "\n". Write errors are kept for commit().
  void write_line(std::string_view line);
  // Appends `bytes` as they are. Write errors are kept for commit().
  void write_bytes(std::string_view bytes);

  // Flushes, sets mode and owner, syncs and renames the temporary file into place. On this or any
  // earlier failure it writes the reason (no space, permission, read-only...) to standard error
  // and raises FileError (`Unable to create file "path"`, naming `path` as given).
  void commit();

 private:
  void flush_buffer();
  void fail();

  std::string path_;    // as the caller names it
  std::string target_;  // where it finally points
  std::string temp_path_;
  int fd_ = -1;
  bool temp_created_ = false;
  int error_ = 0;  // the first failure's errno; 0 while all is well
  bool committed_ = false;
  std::string buffer_;
};

// Writes `lines` to `path` through a ReplacingFile, each followed by "\n", the last included.
// Raises FileError on any failure.
void save_lines(const std::string& path, const StringList& lines);

// Writes `lines` into the file at `path` itself (truncated, or created with `create_mode`), not
// through a temporary file: an existing file keeps its identity, owner and mode, and a file the
// user may not write fails instead of being replaced. Raises FileError naming `path`.
void overwrite_lines(const std::string& path, const StringList& lines, mode_t create_mode);

// Removes the temporary files a killed run left beside the file `path` finally points to (only
// names of ReplacingFile's own pattern for that file).
void remove_leftover_temporary_files(const std::string& path);

}  // namespace talmo
