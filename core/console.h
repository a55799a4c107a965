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

// While alive, keeps a copy of everything written to the console (it is still written), so a
// text built once can print its lines again when it is used a second time. Recordings nest;
// an inner one's output goes to the outer ones too.
class ConsoleRecording {
 public:
  ConsoleRecording();
  ~ConsoleRecording();
  ConsoleRecording(const ConsoleRecording&) = delete;
  ConsoleRecording& operator=(const ConsoleRecording&) = delete;

  // Everything written since this recording began, line ends included.
  const std::string& output() const { return output_; }

 private:
  friend void write_text(const std::string& text);
  std::string output_;
  ConsoleRecording* outer_;
};

}  // namespace talmo
