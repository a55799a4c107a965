#include "core/console.h"

#include <iostream>

namespace talmo {

void write_line(const std::string& text) {
  write_text(text + '\n');
}

void write_text(const std::string& text) {
  std::cout << text << std::flush;
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

ConsoleRecording::ConsoleRecording() : previous_(std::cout.rdbuf()), buffer_(previous_, output_) {
  std::cout.rdbuf(&buffer_);
}

ConsoleRecording::~ConsoleRecording() {
  std::cout.rdbuf(previous_);
}

ConsoleRecording::CopyingBuffer::int_type ConsoleRecording::CopyingBuffer::overflow(int_type c) {
  if (traits_type::eq_int_type(c, traits_type::eof()))
    return traits_type::not_eof(c);
  copy_ += traits_type::to_char_type(c);
  return next_->sputc(traits_type::to_char_type(c));
}

std::streamsize ConsoleRecording::CopyingBuffer::xsputn(const char* text, std::streamsize count) {
  copy_.append(text, static_cast<std::size_t>(count));
  return next_->sputn(text, count);
}

}  // namespace talmo
