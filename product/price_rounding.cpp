#include "product/price_rounding.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "core/errors.h"
#include "core/strings.h"
#include "core/text_utils.h"

namespace talmo {
namespace {

// The cents every euro price ends in.
constexpr double kCentsEnding = 0.90;

}  // namespace

double round_half_even(double value) {
  return std::nearbyint(value);
}

std::int32_t round_to_int32(double value) {
  const double rounded = round_half_even(value);
  if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
        rounded <= std::numeric_limits<std::int32_t>::max())) {
    throw ConversionError(format_general(value) + " is out of the integer range");
  }
  return static_cast<std::int32_t>(rounded);
}

double combine_price(double net, double tax, double rate, double margin, double discount,
                     double extra_profit) {
  const double product = net * tax * rate * margin;
  const long double sum = static_cast<long double>(product) - discount + extra_profit;
  const double result = static_cast<double>(sum);
  if (!std::isfinite(result))
    throw ConversionError("Floating point overflow");
  return result;
}

double forint_ending(std::int32_t rounded) {
  std::string text = std::to_string(rounded);
  if (text.size() == 1)
    text.insert(0, "0");
  char& tens = text[text.size() - 2];
  char& ones = text.back();
  if (tens >= '0' && tens <= '8') {
    tens = '9';
    ones = '0';
  } else if (tens == '9') {
    ones = '0';
  }
  return to_number(text);
}

double euro_ending(double calculated) {
  const std::int32_t whole = round_to_int32(calculated);
  const double cents = round_half_even((calculated - whole) * 100);
  if (cents <= 90)
    return whole + kCentsEnding;
  return (static_cast<double>(whole) + 1) + kCentsEnding;
}

double round_for_site(double calculated, const std::string& SITE) {
  if (SITE == "hu")
    return forint_ending(round_to_int32(calculated));
  if (SITE == "sk")
    return euro_ending(calculated);
  if (SITE == "cz")
    return round_half_even(calculated);
  return calculated;
}

std::string format_general(double value) {
  if (std::isnan(value))
    return "NAN";
  if (std::isinf(value))
    return value < 0 ? "-INF" : "INF";
  if (value == 0)
    return "0";

  // Fifteen significant figures, rounded once by the C library: "-d.dddddddddddddde+XX".
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.14e", std::fabs(value));
  const std::string scientific(buffer);
  const std::size_t e = scientific.find('e');
  const int exponent = std::atoi(scientific.c_str() + e + 1);
  std::string digits = scientific.substr(0, 1) + scientific.substr(2, e - 2);
  while (digits.size() > 1 && digits.back() == '0')
    digits.pop_back();

  const long whole_digits = exponent + 1;
  const long count = static_cast<long>(digits.size());
  std::string text;
  if (whole_digits <= 0) {
    text = "0." + std::string(static_cast<std::size_t>(-whole_digits), '0') + digits;
  } else if (whole_digits >= count) {
    text = digits + std::string(static_cast<std::size_t>(whole_digits - count), '0');
  } else {
    text = digits.substr(0, static_cast<std::size_t>(whole_digits)) + "." +
           digits.substr(static_cast<std::size_t>(whole_digits));
  }
  return value < 0 ? "-" + text : text;
}

}  // namespace talmo
