#pragma once

#include <sys/types.h>
#include <string>

#include "core/strings.h"

namespace talmo {

// Writes `lines` to `path`, each followed by "\n", the last included. The file is written whole to
// a temporary file beside it, flushed to disk and renamed over the old one, so a failure leaves
// the previous file as it was. A new file gets 0666 less the umask; an existing one keeps its
// mode, since the web server reading the feeds relies on it.
// Raises FileError (`Unable to create file "path"`) on any failure.
void save_lines(const std::string& path, const StringList& lines);

// As save_lines, but the file always gets `mode` (config.dat holds the password in clear).
void save_lines_with_mode(const std::string& path, const StringList& lines, mode_t mode);

}  // namespace talmo
