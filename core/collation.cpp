#include "core/collation.h"

#include "core/strings.h"

namespace talmo {
namespace {

bool all_digits(std::string_view text) {
  for (const char c : text) {
    if (c < '0' || c > '9')
      return false;
  }
  return true;
}

std::int64_t decimal_value(std::string_view digits) {
  std::int64_t value = 0;
  for (const char c : digits)
    value = value * 10 + (c - '0');
  return value;
}

}  // namespace

std::optional<std::string> comparable_key(std::string_view key) {
  for (const char c : key) {
    if (c < ' ' || c > '~')
      return std::nullopt;
  }
  const std::size_t last = key.find_last_not_of(' ');
  return lower_ascii(key.substr(0, last == std::string_view::npos ? 0 : last + 1));
}

std::optional<std::int64_t> canonical_id_value(std::string_view text) {
  if (text.empty() || text.size() > 18 || !all_digits(text) || (text.size() > 1 && text[0] == '0'))
    return std::nullopt;
  return decimal_value(text);
}

std::optional<std::int64_t> digits_value(std::string_view text) {
  if (text.empty() || text.size() > 15 || !all_digits(text))
    return std::nullopt;
  return decimal_value(text);
}

}  // namespace talmo
