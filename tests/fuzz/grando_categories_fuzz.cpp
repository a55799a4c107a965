// Grando's category number on any manufacturer, series and product groups. Input, one per
// line: manufacturer, series, product group, second product group.
#include <algorithm>

#include "core/strings.h"
#include "feeds/grando_categories.h"
#include "tests/fuzz/fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talmo;
  using namespace talmo::fuzzing;
  const std::vector<std::string> f = input_fields(data, size, 4);
  const std::string number = GET_CATEGORY_NUMBER(f[0], f[1], f[2], f[3]);

  // A number of Grando's tree or nothing.
  FUZZ_CHECK(number.size() <= 5 && number.find_first_not_of("0123456789") == std::string::npos);
  // The second group is never consulted.
  FUZZ_CHECK(GET_CATEGORY_NUMBER(f[0], f[1], f[2], "") == number);
  FUZZ_CHECK(GET_CATEGORY_NUMBER(f[0], f[1], f[2], f[2]) == number);
  // Letter case does not matter anywhere.
  FUZZ_CHECK(GET_CATEGORY_NUMBER(upper_ascii(f[0]), lower_ascii(f[1]), upper_ascii(f[2]), f[3]) ==
             number);
  // Without a manufacturer no brand applies.
  FUZZ_CHECK(!f[0].empty() || number.empty());
  return 0;
}
