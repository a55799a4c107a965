// The feeds' own price texts: Grando's percentage raise with the "90" ending (Vatera raises it
// again), Grando's warranty codes and the Heureka.sk decimal comma.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "feeds/grando.h"
#include "feeds/heureka_sk.h"

namespace talmo {
namespace {

TEST(GrandoAddPercent, RaisesRoundsAndEndsIn90) {
  struct Case {
    std::int32_t percent;
    std::string amount, result;
  };
  for (const Case& c : std::vector<Case>{
           {4, "99990", "103990"},           // 103989.6 rounds to a price already ending in 90
           {2, "118990", "121390"},          // the Vatera step on top of a Grando price
           {4, "2147483647", "2233382990"},  // beyond 32 bits after the raise
           {4, "1234.5", "1234.5"},          // not a 32-bit whole number: returned as it came
           {4, "", ""},
           {4, "2147483648", "2147483648"},
           {4, "5", "5"},  // a single figure (sign not counted) is left as computed
           {4, "-100", "-190"},
           {50, "1", "2"},  // ties go to the even neighbour
           {50, "3", "4"},
       }) {
    EXPECT_EQ(GENERATE_GRANDO_ADDPERCENT(c.percent, c.amount), c.result)
        << c.percent << "% of \"" << c.amount << "\"";
  }
}

TEST(GrandoWarrantyCode, TwelveThenTwentyFourElseNine) {
  struct Case {
    std::string warranty, code;
  };
  for (const Case& c : std::vector<Case>{{"120 nap", "7"},  // a substring test
                                         {"x24x12", "7"},   // twelve is looked for first
                                         {"2 év (24)", "8"},
                                         {"36 hónap", "9"}}) {
    EXPECT_EQ(grando_warranty_code(c.warranty), c.code) << c.warranty;
  }
}

TEST(HeurekaPriceDecimals, WritesCentsWithADecimalComma) {
  struct Case {
    std::string price, written;
  };
  for (const Case& c : std::vector<Case>{
           {"499.9", "499,90"},
           {"499.99", "499,99"},
           {"12.345", "12,345"},
           {"1200", "1200"},
           {"1200.", "1200,"},    // nothing after the point: no zero
           {"1.23.4", "1,23,4"},  // only the part after the first point counts
           {"0", "00"},           // one character without a point gets the zero as well
           // One character is one letter, however many bytes it takes.
           {"€", "€0"},
           {"12.€", "12,€0"},
           {"12.€€", "12,€€"},
           {"Á", "Á0"},
           {"ab", "ab"},
           {"💶", "💶0"},
       }) {
    EXPECT_EQ(heureka_price_decimals(c.price), c.written) << c.price;
  }
}

}  // namespace
}  // namespace talmo
