// STRINGEXTRACT and COUNTOCCURENCES on any stored text. Input: the delimiter byte, then the text.
#include <algorithm>

#include "core/text_utils.h"
#include "tests/fuzz/fuzz_support.h"

namespace talmo::fuzzing {
namespace {

bool is_blank(char c) {
  return static_cast<unsigned char>(c) <= 0x20;
}

// Non-overlapping occurrences of `part`, counted from the left.
std::int32_t occurrences(const std::string& part, const std::string& text) {
  std::int32_t count = 0;
  for (std::size_t at = text.find(part); !part.empty() && at != std::string::npos;
       at = text.find(part, at + part.size()))
    ++count;
  return count;
}

void check_split(const std::string& text, char delimiter) {
  StringList pieces{"left over"};
  STRINGEXTRACT(text, pieces, delimiter);
  const auto delimiters = std::count(text.begin(), text.end(), delimiter);
  FUZZ_CHECK(pieces.size() == static_cast<std::size_t>(delimiters) + 1);
  FUZZ_CHECK(split_stored(text, delimiter) == pieces);

  // Every piece but the last is the text up to the next delimiter, unchanged.
  std::size_t at = 0;
  for (std::size_t i = 0; i + 1 < pieces.size(); ++i) {
    FUZZ_CHECK(text.compare(at, pieces[i].size(), pieces[i]) == 0);
    at += pieces[i].size();
    FUZZ_CHECK(text[at] == delimiter);
    ++at;
  }
  // The last is the rest without its leading and trailing blanks.
  const std::string rest = text.substr(at);
  const std::string& last = pieces.back();
  const std::size_t lead = rest.find(last);
  FUZZ_CHECK(lead != std::string::npos);
  FUZZ_CHECK(std::all_of(rest.begin(), rest.begin() + static_cast<long>(lead), is_blank));
  FUZZ_CHECK(
      std::all_of(rest.begin() + static_cast<long>(lead + last.size()), rest.end(), is_blank));
  FUZZ_CHECK(last.empty() || (!is_blank(last.front()) && !is_blank(last.back())));
}

}  // namespace
}  // namespace talmo::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talmo;
  using namespace talmo::fuzzing;
  if (size == 0)
    return 0;
  const char delimiter = static_cast<char>(data[0]);
  const std::string text = input_text(data + 1, size - 1);
  check_split(text, delimiter);

  // Counting the delimiter itself, and a longer part taken from the text's start.
  FUZZ_CHECK(COUNTOCCURENCES(std::string(1, delimiter), text) ==
             std::count(text.begin(), text.end(), delimiter));
  const std::string part = text.substr(0, static_cast<unsigned char>(delimiter) % 4);
  FUZZ_CHECK(COUNTOCCURENCES(part, text) == occurrences(part, text));
  FUZZ_CHECK(COUNTOCCURENCES(text, "") == 0);
  return 0;
}
