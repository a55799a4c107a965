#include "core/collation.h"

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
  std::string folded;
  folded.reserve(key.size());
  for (const char c : key) {
    if (c < ' ' || c > '~')
      return std::nullopt;
    folded += (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
  }
  while (!folded.empty() && folded.back() == ' ')
    folded.pop_back();
  return folded;
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
