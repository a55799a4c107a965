#pragma once

#include <optional>
#include <string>

namespace talmo {

// Writes text and a line end to standard output, flushed so the operator sees progress live.
void write_line(const std::string& text);
// Writes text without a line end (prompts and the closing message).
void write_text(const std::string& text);
// Writes text and a line end to standard error (a command's usage errors).
void write_error_line(const std::string& text);
// The next input line without its line end; nullopt at end of input.
std::optional<std::string> read_line();

}  // namespace talmo
