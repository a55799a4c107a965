#pragma once

#include <string>

#include "core/file_reader.h"

namespace talmo {

// Replaces `destination` with the whole content of `source`, read from its start. The copy goes
// to a temporary file beside the destination, is flushed to disk and renamed over it, so the
// old file stays whole until the new one is complete. As the exporter does with its feeds, an
// existing destination keeps its mode, and its owner and group where the process may set them;
// a symbolic link stays a link and the file it points to is replaced. A new file gets 0666 less
// the umask. Raises FileError naming `destination` (or FileReadError) on any failure.
void replace_with_copy(FileReader& source, const std::string& destination);

}  // namespace talmo
