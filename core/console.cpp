#include "core/console.h"

#include <iostream>

namespace talmo {
namespace {

// The innermost recording under way; the tool is single-threaded.
ConsoleRecording* current_recording = nullptr;

}  // namespace

void write_line(const std::string& text) {
  write_text(text + '\n');
}

void write_text(const std::string& text) {
  std::cout << text << std::flush;
  for (ConsoleRecording* recording = current_recording; recording != nullptr;
       recording = recording->outer_)
    recording->output_ += text;
}

void write_error_line(const std::string& text) {
  std::cerr << text << '\n' << std::flush;
}

std::optional<std::string> read_line() {
  std::string line;
  if (!std::getline(std::cin, line))
    return std::nullopt;
  return line;
}

ConsoleRecording::ConsoleRecording() : outer_(current_recording) {
  current_recording = this;
}

ConsoleRecording::~ConsoleRecording() {
  current_recording = outer_;
}

}  // namespace talmo
