#include "feedcheck/display_text.h"

#include <cstdio>

namespace talmo::feedcheck {
namespace {

// The length of the UTF-8 sequence starting at `at`, 0 when the bytes there are not one.
std::size_t sequence_length(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(at);
  std::size_t length = 0;
  if (lead < 0x80)
    return 1;
  if (lead >= 0xC2 && lead <= 0xDF)
    length = 2;
  else if (lead >= 0xE0 && lead <= 0xEF)
    length = 3;
  else if (lead >= 0xF0 && lead <= 0xF4)
    length = 4;
  else
    return 0;
  if (at + length > text.size())
    return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(at + i) & 0xC0) != 0x80)
      return 0;
  }
  const unsigned char second = byte(at + 1);
  if ((lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
      (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F))
    return 0;
  return length;
}

std::string escaped(unsigned char byte) {
  switch (byte) {
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\t':
      return "\\t";
    default: {
      char buffer[8];
      std::snprintf(buffer, sizeof buffer, "\\x%02X", byte);
      return buffer;
    }
  }
}

std::string make_visible(std::string_view text, std::size_t max_characters) {
  std::string out;
  std::size_t characters = 0;
  std::size_t at = 0;
  while (at < text.size()) {
    if (characters == max_characters)
      return out + "...";
    const std::size_t length = sequence_length(text, at);
    const unsigned char byte = static_cast<unsigned char>(text[at]);
    if (length == 0 || byte < 0x20 || byte == 0x7F) {
      out += escaped(byte);
      ++at;
    } else {
      out.append(text.substr(at, length));
      at += length;
    }
    ++characters;
  }
  return out;
}

}  // namespace

std::string visible(std::string_view text) {
  return make_visible(text, std::string::npos);
}

std::string shown(std::string_view text) {
  return make_visible(text, kShownCharacters);
}

}  // namespace talmo::feedcheck
