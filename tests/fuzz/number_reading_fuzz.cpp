// to_number and to_integer on any text: exactly the grammar is read, a value too small for a
// double is the nearest one, and a number read back from its printed form is the same number.
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "core/errors.h"
#include "core/strings.h"
#include "product/price_rounding.h"
#include "tests/fuzz/fuzz_support.h"

namespace talmo::fuzzing {
namespace {

bool all_digits(const std::string& text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

std::string without_sign(const std::string& text) {
  return !text.empty() && (text[0] == '+' || text[0] == '-') ? text.substr(1) : text;
}

// Sign, digits, optionally "." and digits, optionally "e"/"E", sign and digits.
bool number_grammar(const std::string& text) {
  const std::size_t e = text.find_first_of("eE");
  const std::string mantissa = without_sign(text.substr(0, e));
  if (e != std::string::npos && !all_digits(without_sign(text.substr(e + 1))))
    return false;
  const std::size_t point = mantissa.find('.');
  if (point == std::string::npos)
    return all_digits(mantissa);
  return all_digits(mantissa.substr(0, point)) && all_digits(mantissa.substr(point + 1));
}

bool same_double(double a, double b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

void check_number(const std::string& text) {
  const bool grammar = number_grammar(text);
  const double reference = grammar ? std::strtod(text.c_str(), nullptr) : 0;
  try {
    const double value = to_number(text);
    FUZZ_CHECK(grammar && !std::isinf(reference));
    FUZZ_CHECK(same_double(value, reference));
  } catch (const ConversionError&) {
    FUZZ_CHECK(!grammar || std::isinf(reference));
  }
}

// The integer's own decimal form: "-" only before a non-zero value, no "+", no leading zeros.
std::string canonical_integer(const std::string& text) {
  std::string digits = without_sign(text);
  digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size() - 1));
  return text[0] == '-' && digits != "0" ? "-" + digits : digits;
}

bool fits_int32(const std::string& canonical) {
  const bool negative = canonical[0] == '-';
  const std::string digits = negative ? canonical.substr(1) : canonical;
  const std::string limit = negative ? "2147483648" : "2147483647";
  return digits.size() < limit.size() || (digits.size() == limit.size() && digits <= limit);
}

void check_integer(const std::string& text) {
  const bool grammar = all_digits(without_sign(text));
  try {
    const std::int32_t value = to_integer(text);
    FUZZ_CHECK(grammar && fits_int32(canonical_integer(text)));
    FUZZ_CHECK(std::to_string(value) == canonical_integer(text));
  } catch (const ConversionError&) {
    FUZZ_CHECK(!grammar || !fits_int32(canonical_integer(text)));
  }
}

// A finite number printed with at most 15 figures (no exponent) reads back to the 15-figure
// rounding of it, and printing that gives the same text again.
void check_printed(double value) {
  const std::string printed = format_general(value);
  FUZZ_CHECK(number_grammar(printed) && !holds(printed, "e") && !holds(printed, "+"));
  // No trailing zeros after a point, and no point without figures after it.
  FUZZ_CHECK(!holds(printed, ".") || (printed.back() != '0' && printed.back() != '.'));
  char reference[64];
  std::snprintf(reference, sizeof reference, "%.15g", value);
  const double read_back = to_number(printed);
  FUZZ_CHECK(read_back == std::strtod(reference, nullptr));
  FUZZ_CHECK(format_general(read_back) == printed);
}

}  // namespace
}  // namespace talmo::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talmo;
  using namespace talmo::fuzzing;
  const std::string text = input_text(data, size);
  check_number(text);
  check_integer(text);
  if (number_grammar(text)) {
    const double value = std::strtod(text.c_str(), nullptr);
    if (std::isfinite(value))
      check_printed(value);
  }
  return 0;
}
