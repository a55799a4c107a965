// Rounding and price endings as the feeds print them, one row per rule.
#include "product/price_rounding.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "core/errors.h"

namespace talmo {
namespace {

TEST(PriceRounding, SiteEndingsInTheGeneralShortestForm) {
  struct Case {
    double calculated;
    std::string site, text;
  };
  for (const Case& c : std::vector<Case>{
           {123456.4, "hu", "123490"},            // forint: ends in 90 within its own hundred
           {99995, "hu", "99990"},                // tens place 9: only the last figure becomes 0
           {-0.4, "hu", "90"},                    // 0, one figure, is read as "00"
           {-5, "hu", "-5"},                      // "-5": the tens place is the sign
           {2147483647.4, "hu", "2147483690"},    // past 32 bits after the ending
           {-2147483648.5, "hu", "-2147483690"},  // ties to even: the lowest 32-bit number
           {10.5, "sk", "10.9"},                  // euro: ties to even, plus 0.90
           {-2.5, "sk", "-1.1"},
           {0.49999999999999994, "sk", "0.9"},    // below the half, though + 0.5 would give 1
           {3000000000.5, "cz", "3000000000"},    // whole crowns, ties to even, past 32 bits
           {1234.5678, "pl", "1234.5678"},        // any other site: as calculated
           {2.0 / 3, "pl", "0.666666666666667"},  // 15 significant figures, no exponent
           {1e-7, "pl", "0.0000001"},
           {123456789012345678.0, "pl", "123456789012346000"},
           {-0.0, "pl", "0"},
           {std::numeric_limits<double>::infinity(), "pl", "INF"},
       }) {
    EXPECT_EQ(format_general(round_for_site(c.calculated, c.site)), c.text)
        << c.calculated << " " << c.site;
  }
  for (double outside : {2147483647.5, -2147483649.0, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_THROW(round_for_site(outside, "hu"), ConversionError) << outside;
    EXPECT_THROW(round_for_site(outside, "sk"), ConversionError) << outside;
  }
}

TEST(PriceRounding, DiscountAndExtraProfitAreAddedInExtendedPrecision) {
  // 2^53 + 1 is exact in extended precision, so adding 1 (a discount of -1) and then -1 returns
  // to 2^53; done in double, 2^53 + 1 would round to 2^53 and the result be 2^53 - 1.
  EXPECT_EQ(combine_price(9007199254740992.0, 1, 1, 1, -1, -1), 9007199254740992.0);
  EXPECT_THROW(combine_price(1e300, 1e10, 1, 1, 0, 0), ConversionError);
}

}  // namespace
}  // namespace talmo
