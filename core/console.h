#pragma once

#include <optional>
#include <streambuf>
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
  // Passes every byte on to the console's previous buffer and keeps a copy.
  class CopyingBuffer : public std::streambuf {
   public:
    CopyingBuffer(std::streambuf* next, std::string& copy) : next_(next), copy_(copy) {}

   protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char* text, std::streamsize count) override;
    int sync() override { return next_->pubsync(); }

   private:
    std::streambuf* next_;
    std::string& copy_;
  };

  std::string output_;
  std::streambuf* previous_;
  CopyingBuffer buffer_;
};

}  // namespace talmo
