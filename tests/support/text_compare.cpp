#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <iostream>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

bool two_digits(const std::string& text, std::size_t at) {
  return at + 2 <= text.size() && is_digit(text[at]) && is_digit(text[at + 1]);
}

// The length of a clock reading starting at `at`, or 0 when there is none.
std::size_t time_length(const std::string& text, std::size_t at) {
  if (!two_digits(text, at) || at + 9 >= text.size() || text[at + 2] != ':' ||
      !two_digits(text, at + 3) || text[at + 5] != ':' || !two_digits(text, at + 6) ||
      text[at + 8] != '.' || !is_digit(text[at + 9]))
    return 0;
  std::size_t length = 10;
  while (length < 12 && at + length < text.size() && is_digit(text[at + length]))
    ++length;
  return length;
}

std::vector<std::string> split_lines(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (std::size_t end; (end = text.find('\n', start)) != std::string::npos; start = end + 1)
    lines.push_back(text.substr(start, end - start));
  lines.push_back(text.substr(start));
  return lines;
}

std::string visible(const std::string& text) {
  std::string shown;
  for (const char c : text) {
    if (c == '\r') {
      shown += "\\r";
    } else if (c == '\t') {
      shown += "\\t";
    } else if (c == '\\') {
      shown += "\\\\";
    } else if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) {
      char code[8];
      std::snprintf(code, sizeof code, "\\x%02x", static_cast<unsigned char>(c));
      shown += code;
    } else {
      shown += c;
    }
  }
  return shown;
}

// Long lines (descriptions run to kilobytes) are shown around the difference only.
std::string excerpt(const std::string& line, std::size_t column) {
  constexpr std::size_t kContext = 80;
  const std::size_t start = column > kContext ? column - kContext : 0;
  const std::size_t end = std::min(line.size(), column + kContext);
  return (start > 0 ? "..." : "") + visible(line.substr(start, end - start)) +
         (end < line.size() ? "..." : "");
}

}  // namespace

std::string mask_times(const std::string& text) {
  std::string masked;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = time_length(text, i);
    if (length > 0) {
      masked += "<time>";
      i += length;
    } else {
      masked += text[i++];
    }
  }
  return masked;
}

void expect_same_text(const std::string& expected, const std::string& actual, const char* file,
                      int caller_line) {
  if (expected == actual)
    return;
  const std::vector<std::string> want = split_lines(expected);
  const std::vector<std::string> got = split_lines(actual);
  std::size_t line = 0;
  while (line < want.size() && line < got.size() && want[line] == got[line])
    ++line;
  const std::string none = "(end of text)";
  const std::string& a = line < want.size() ? want[line] : none;
  const std::string& b = line < got.size() ? got[line] : none;
  std::size_t column = 0;
  while (column < a.size() && column < b.size() && a[column] == b[column])
    ++column;
  ADD_FAILURE_AT(file, caller_line)
      << "texts differ at line " << line + 1 << ", column " << column + 1 << " (expected "
      << want.size() << " lines, got " << got.size() << ")\n"
      << "  expected: " << (line < want.size() ? excerpt(a, column) : none) << "\n"
      << "  actual:   " << (line < got.size() ? excerpt(b, column) : none);
}

CapturedStdout::CapturedStdout() : previous_(std::cout.rdbuf()) {
  std::cout.flush();
  std::cout.rdbuf(buffer_.rdbuf());
}

CapturedStdout::~CapturedStdout() {
  std::cout.rdbuf(previous_);
}

}  // namespace talmo::testing
