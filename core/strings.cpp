#include "core/strings.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "core/errors.h"

namespace talmo {
namespace {

char upper_char(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}
bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

// Replaces every occurrence of `from` in `text`, where occurrences are found in `haystack`: the
// text itself, or a copy of it with ASCII letters folded, which has the same length, so every
// position found in it is the same position in the text.
std::string replace_found(std::string_view text, std::string_view haystack, std::string_view from,
                          std::string_view to) {
  if (from.empty())
    return std::string(text);
  std::string result;
  std::size_t pos = 0;
  for (std::size_t hit = haystack.find(from); hit != std::string_view::npos;
       hit = haystack.find(from, pos)) {
    if (result.empty())
      result.reserve(text.size());
    result.append(text.substr(pos, hit - pos));
    result.append(to);
    pos = hit + from.size();
  }
  result.append(text.substr(pos));
  return result;
}

}  // namespace

// Written without branches, so the compiler folds many bytes at once: long descriptions are
// folded whole.
std::string upper_ascii(std::string_view text) {
  std::string result(text);
  for (char& c : result)
    c = static_cast<char>(c - (static_cast<unsigned char>(c - 'a') < 26 ? 'a' - 'A' : 0));
  return result;
}

std::string lower_ascii(std::string_view text) {
  std::string result(text);
  for (char& c : result)
    c = static_cast<char>(c + (static_cast<unsigned char>(c - 'A') < 26 ? 'a' - 'A' : 0));
  return result;
}

bool equals_ci(std::string_view a, std::string_view b) {
  if (a.size() != b.size())
    return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (upper_char(a[i]) != upper_char(b[i]))
      return false;
  }
  return true;
}

bool contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

bool contains_ci(std::string_view text, std::string_view part) {
  return lower_ascii(text).find(lower_ascii(part)) != std::string::npos;
}

std::string trim(std::string_view text) {
  std::size_t begin = 0;
  std::size_t end = text.size();
  while (begin < end && static_cast<unsigned char>(text[begin]) <= 0x20)
    ++begin;
  while (end > begin && static_cast<unsigned char>(text[end - 1]) <= 0x20)
    --end;
  return std::string(text.substr(begin, end - begin));
}

std::string replace_all(std::string_view text, std::string_view from, std::string_view to) {
  return replace_found(text, text, from, to);
}

std::string replace_all_ci(std::string_view text, std::string_view from, std::string_view to) {
  if (from.empty() || from.size() > text.size())
    return std::string(text);
  return replace_found(text, lower_ascii(text), lower_ascii(from), to);
}

const std::string& item_at(const StringList& list, std::size_t index) {
  if (index >= list.size()) {
    throw ListIndexError("List index (" + std::to_string(index) + ") out of bounds");
  }
  return list[index];
}

std::string item_or_empty(const StringList& list, std::size_t index) {
  return index < list.size() ? list[index] : std::string();
}

std::optional<std::int32_t> parse_integer(std::string_view text) {
  std::size_t i = 0;
  if (i < text.size() && (text[i] == '+' || text[i] == '-'))
    ++i;
  const std::size_t digits_start = i;
  while (i < text.size() && is_digit(text[i]))
    ++i;
  const bool well_formed = i == text.size() && i > digits_start;
  if (well_formed) {
    std::int64_t value = 0;
    bool in_range = true;
    for (std::size_t k = digits_start; k < text.size() && in_range; ++k) {
      value = value * 10 + (text[k] - '0');
      in_range = value <= std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
    }
    if (text[0] == '-')
      value = -value;
    if (in_range && value >= std::numeric_limits<std::int32_t>::min() &&
        value <= std::numeric_limits<std::int32_t>::max()) {
      return static_cast<std::int32_t>(value);
    }
  }
  return std::nullopt;
}

std::optional<double> parse_number(std::string_view text) {
  std::size_t i = 0;
  auto skip_digits = [&] {
    const std::size_t start = i;
    while (i < text.size() && is_digit(text[i]))
      ++i;
    return i > start;
  };
  if (i < text.size() && (text[i] == '+' || text[i] == '-'))
    ++i;
  bool ok = skip_digits();
  if (ok && i < text.size() && text[i] == '.') {
    ++i;
    ok = skip_digits();
  }
  if (ok && i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
    ++i;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
      ++i;
    ok = skip_digits();
  }
  if (ok && i == text.size()) {
    const std::string copy(text);
    errno = 0;
    const double value = std::strtod(copy.c_str(), nullptr);
    // A value too small for a double reads as the nearest one (0 or a subnormal); only one
    // beyond the double range is refused.
    if (errno != ERANGE || !std::isinf(value))
      return value;
  }
  return std::nullopt;
}

std::int32_t to_integer(std::string_view text) {
  if (const std::optional<std::int32_t> value = parse_integer(text))
    return *value;
  throw ConversionError("\"" + std::string(text) + "\" is an invalid integer");
}

double to_number(std::string_view text) {
  if (const std::optional<double> value = parse_number(text))
    return *value;
  throw ConversionError("\"" + std::string(text) + "\" is an invalid float");
}

}  // namespace talmo
