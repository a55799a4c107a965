#include "feedcheck/value_checks.h"

#include <algorithm>
#include <cstdlib>

namespace talmo::feedcheck {
namespace {

bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

// Sign, figures and an optional decimal separator with figures; the count of decimals, or -1
// when the text is not such a number.
int decimals_of(std::string_view text, bool decimal_comma) {
  std::size_t at = text.size() > 0 && text[0] == '-' ? 1 : 0;
  const std::size_t integer_start = at;
  while (at < text.size() && is_digit(text[at]))
    ++at;
  if (at == integer_start)
    return -1;
  if (at == text.size())
    return 0;
  if (text[at] != '.' && !(decimal_comma && text[at] == ','))
    return -1;
  const std::size_t fraction_start = ++at;
  while (at < text.size() && is_digit(text[at]))
    ++at;
  if (at != text.size() || at == fraction_start)
    return -1;
  return static_cast<int>(at - fraction_start);
}

Finding finding(ProblemKind kind, const std::string& label, std::string what,
                std::optional<std::string> text) {
  return Finding{kind, label, std::move(what), std::move(text)};
}

}  // namespace

const PriceRule& forint_prices() {
  static const PriceRule rule{{"0", "90"}, false, -1};
  return rule;
}

const PriceRule& euro_prices() {
  static const PriceRule rule{{"00", "0,90"}, true, 2};
  return rule;
}

std::size_t character_count(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

bool is_web_address(std::string_view text) {
  return text.substr(0, 7) == "http://" || text.substr(0, 8) == "https://";
}

std::optional<double> price_value(std::string_view text) {
  if (decimals_of(text, true) < 0)
    return std::nullopt;
  std::string number(text);
  std::replace(number.begin(), number.end(), ',', '.');
  return std::strtod(number.c_str(), nullptr);
}

bool check_present(const Field* field, const std::string& label, std::vector<Finding>& findings) {
  if (field && !field->value.empty())
    return true;
  findings.push_back(
      finding(ProblemKind::MissingValue, label, field ? "empty" : "not in the item", std::nullopt));
  return false;
}

void check_price(const Field* field, const std::string& label, const PriceRule& rule,
                 std::vector<Finding>& findings) {
  const std::string value = field ? field->value : std::string();
  if (value.empty()) {
    findings.push_back(finding(ProblemKind::BadPrice, label, "no price", std::nullopt));
    return;
  }
  if (std::find(rule.not_computed.begin(), rule.not_computed.end(), value) !=
      rule.not_computed.end()) {
    findings.push_back(finding(ProblemKind::PriceNotComputed, label,
                               "the value a price takes when it could not be computed", value));
    return;
  }
  const int decimals = decimals_of(value, rule.decimal_comma);
  std::string what;
  if (decimals < 0)
    what = "not a number";
  else if (value[0] == '-' && value.find_first_of("123456789") != std::string::npos)
    what = "negative";
  else if (value.find_first_of("123456789") == std::string::npos)
    what = "zero";
  else if (rule.max_decimals >= 0 && decimals > rule.max_decimals)
    what = "more than " + std::to_string(rule.max_decimals) + " decimals";
  if (!what.empty())
    findings.push_back(finding(ProblemKind::BadPrice, label, what, value));
}

void check_address(const Field* field, const std::string& label, bool no_blanks,
                   std::vector<Finding>& findings) {
  if (!field || field->value.empty())
    return;
  if (!is_web_address(field->value)) {
    findings.push_back(finding(ProblemKind::BadAddress, label,
                               "does not start with http:// or https://", field->value));
  } else if (no_blanks && field->value.find_first_of(" \t\r\n") != std::string::npos) {
    findings.push_back(finding(ProblemKind::BadAddress, label, "holds a blank", field->value));
  }
}

void check_length(const Field* field, const std::string& label, std::size_t limit,
                  std::vector<Finding>& findings) {
  if (!field)
    return;
  const std::size_t length = character_count(field->value);
  if (!field->cut && length <= limit)
    return;
  const std::string count =
      field->cut ? "more than " + std::to_string(length) : std::to_string(length);
  findings.push_back(finding(ProblemKind::TooLong, label,
                             count + " characters, at most " + std::to_string(limit),
                             field->value));
}

}  // namespace talmo::feedcheck
