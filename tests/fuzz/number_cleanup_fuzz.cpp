// MAKEVALIDNUMERICVALUE on any stored price text, and what the price computation reads from it.
#include <algorithm>
#include <cmath>

#include "core/errors.h"
#include "core/text_utils.h"
#include "tests/fuzz/fuzz_support.h"

namespace talmo::fuzzing {
namespace {

bool has_kalkul(const std::string& text) {
  std::string folded = text;
  for (char& c : folded) {
    if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c + ('a' - 'A'));
  }
  return holds(folded, "kalkul");
}

// The clean-up worked out by position: blanks go; with two or more separators ("." or ",") only
// the last stays, as "."; with one, it becomes ".".
std::string expected_cleanup(const std::string& text) {
  std::string kept;
  std::copy_if(text.begin(), text.end(), std::back_inserter(kept), [](char c) { return c != ' '; });
  const std::size_t separators = static_cast<std::size_t>(
      std::count_if(kept.begin(), kept.end(), [](char c) { return c == '.' || c == ','; }));
  std::string result;
  std::size_t seen = 0;
  for (char c : kept) {
    if (c != '.' && c != ',') {
      result += c;
    } else if (++seen == separators) {
      result += '.';
    }
  }
  return result;
}

}  // namespace
}  // namespace talmo::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talmo;
  using namespace talmo::fuzzing;
  const std::string text = input_text(data, size);
  const std::string clean = MAKEVALIDNUMERICVALUE(text);
  if (text.empty() || has_kalkul(text)) {
    FUZZ_CHECK(clean == "0");
    return 0;
  }
  FUZZ_CHECK(clean == expected_cleanup(text));
  FUZZ_CHECK(!holds(clean, " ") && !holds(clean, ","));
  FUZZ_CHECK(std::count(clean.begin(), clean.end(), '.') <= 1);
  if (!clean.empty() && !has_kalkul(clean))
    FUZZ_CHECK(MAKEVALIDNUMERICVALUE(clean) == clean);
  try {
    FUZZ_CHECK(std::isfinite(to_number(clean)));
  } catch (const ConversionError&) {
    // Not a number: the price computation reports it and keeps its default.
  }
  return 0;
}
