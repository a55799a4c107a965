#pragma once

#include <string>

#include "core/file_reader.h"

namespace talmo {

// Replaces `destination` with the whole content of `source`, read from its start, the way the
// exporter writes its feeds (a ReplacingFile: the old file stays whole until the copy is complete;
// mode, owner as root, and links kept). Raises FileError naming `destination` (or FileReadError)
// on any failure.
void replace_with_copy(FileReader& source, const std::string& destination);

}  // namespace talmo
