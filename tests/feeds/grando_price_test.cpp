// Grando's percentage raise with the "90" price ending, and its warranty codes.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "feeds/grando.h"

namespace talmo {
namespace {

TEST(GrandoAddPercent, RaisesRoundsAndEndsIn90) {
  struct Case {
    std::int32_t percent;
    std::string amount, result;
  };
  const std::vector<Case> cases = {
      {4, "99990", "103990"},           // 103989.6 rounds to a price already ending in 90
      {2, "118990", "121390"},          // the Vatera step on top of a Grando price
      {4, "2147483647", "2233382990"},  // beyond 32 bits after the raise
      {-50, "200", "190"},
      // not a 32-bit whole number: returned as it came
      {4, "", ""},
      {4, "1234.5", "1234.5"},
      {4, " 1000", " 1000"},
      {4, "2147483648", "2147483648"},
      // a single figure (sign not counted) is left as computed
      {4, "5", "5"},
      {4, "10", "90"},
      {-100, "5000", "0"},
      // negatives keep their sign
      {4, "-5", "-5"},
      {4, "-100", "-190"},
      // ties go to the even neighbour
      {50, "1", "2"},
      {50, "3", "4"},
      {-50, "-5", "-2"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(GENERATE_GRANDO_ADDPERCENT(c.percent, c.amount), c.result)
        << c.percent << "% of \"" << c.amount << "\"";
  }
}

TEST(GrandoWarrantyCode, TwelveThenTwentyFourElseNine) {
  struct Case {
    std::string warranty, code;
  };
  for (const Case& c : std::vector<Case>{{"12 hónap", "7"},
                                         {"120 nap", "7"},  // a substring test
                                         {"x24x12", "7"},   // twelve is looked for first
                                         {"2 év (24)", "8"},
                                         {"36 hónap", "9"},
                                         {"", "9"}}) {
    EXPECT_EQ(grando_warranty_code(c.warranty), c.code) << c.warranty;
  }
}

}  // namespace
}  // namespace talmo
