// The page slug and the category path word on any stored names. Input, one per line: serial
// number, manufacturer, name, model name, main-category name; the whole input is slugged too.
#include <algorithm>

#include "core/errors.h"
#include "core/strings.h"
#include "product/slug.h"
#include "tests/fuzz/fuzz_support.h"

namespace talmo::fuzzing {
namespace {

// Nothing the replacement list turns into something else may be left, apart from "é" (which
// "á" becomes), and no capital ASCII letter.
void check_slugify(const std::string& text) {
  const std::string slug = slugify(text);
  FUZZ_CHECK(slug.size() <= text.size());
  FUZZ_CHECK(slug.find_first_of(" '\"+!%/=()?,.:_ABCDEFGHIJKLMNOPQRSTUVWXYZ") == std::string::npos);
  for (const char* letter : {"§", "õ", "ú", "á", "û", "í", "ó", "ü", "ö"})
    FUZZ_CHECK(!holds(slug, letter));
  if (!holds(slug, "é"))
    FUZZ_CHECK(slugify(slug) == slug);
}

void check_product_slug(const std::string& sorszam, const std::string& gyarto,
                        const std::string& nev, const std::string& tipus) {
  std::int32_t serial = 0;
  try {
    serial = to_integer(sorszam);
  } catch (const ConversionError&) {
    try {
      product_slug(sorszam, gyarto, nev, tipus);
      FUZZ_CHECK(false);  // a serial number that is not a number has no slug
    } catch (const ConversionError&) {
    }
    return;
  }
  // Exactly one of the two names is used, chosen by the serial number.
  const std::string slug = product_slug(sorszam, gyarto, nev, tipus);
  const bool by_nev = product_slug(sorszam, gyarto, nev + "x", tipus) != slug;
  const bool by_tipus = product_slug(sorszam, gyarto, nev, tipus + "x") != slug;
  FUZZ_CHECK(by_nev != by_tipus);
  FUZZ_CHECK(by_nev == (serial >= FIRST_SORSZAM_NAMED_BY_NEV));
}

void check_category_word(const std::string& gyarto, const std::string& category) {
  const std::string word = GETCATEGORYURL(gyarto, category);
  FUZZ_CHECK(GETCATEGORYURL(gyarto, upper_ascii(category)) == word);
  FUZZ_CHECK(GETCATEGORYURL(gyarto, lower_ascii(category)) == word);
  if (gyarto.empty()) {
    FUZZ_CHECK(word.find_first_of(" ABCDEFGHIJKLMNOPQRSTUVWXYZ") == std::string::npos);
    FUZZ_CHECK(word.empty() || equals_ci(word.substr(0, 3), category.substr(0, 3)));
  } else {
    FUZZ_CHECK(word.empty() || word.rfind(lower_ascii(gyarto) + "-", 0) == 0);
  }
}

}  // namespace
}  // namespace talmo::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talmo::fuzzing;
  const std::vector<std::string> fields = input_fields(data, size, 5);
  check_slugify(input_text(data, size));
  check_product_slug(fields[0], fields[1], fields[2], fields[3]);
  check_category_word(fields[1], fields[4]);
  check_category_word("", fields[4]);
  return 0;
}
