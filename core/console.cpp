#include "core/console.h"

#include <iostream>

namespace talmo {

void write_line(const std::string& text) {
  std::cout << text << '\n' << std::flush;
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

}  // namespace talmo
