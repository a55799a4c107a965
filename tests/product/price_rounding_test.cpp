#include "product/price_rounding.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "core/errors.h"

namespace talmo {
namespace {

TEST(PriceRounding, RoundsHalfToEven) {
  struct Case {
    double value, rounded;
  };
  for (const Case& c :
       std::vector<Case>{{0.5, 0}, {1.5, 2}, {2.5, 2}, {-2.5, -2}, {0.49999999999999994, 0}}) {
    EXPECT_EQ(round_half_even(c.value), c.rounded) << c.value;
  }
}

TEST(PriceRounding, IntegerRoundingRefusesWhatDoesNotFit) {
  EXPECT_EQ(round_to_int32(2147483647.4), 2147483647);
  EXPECT_EQ(round_to_int32(-2147483648.5), -2147483647 - 1);  // tie goes to the even end
  EXPECT_EQ(round_to_int32(-7.5), -8);
  for (double value :
       {2147483647.5, 3e9, -2147483649.0, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_THROW(round_to_int32(value), ConversionError) << value;
  }
}

TEST(PriceRounding, DiscountAndExtraProfitAreAddedInExtendedPrecision) {
  // 2^53 + 1 is exact in extended precision, so adding 1 (a discount of -1) and then -1 returns
  // to 2^53; done in double, 2^53 + 1 would round to 2^53 and the result be 2^53 - 1.
  EXPECT_EQ(combine_price(9007199254740992.0, 1, 1, 1, -1, -1), 9007199254740992.0);
  // 1000 x 1.27 x 1 x 1.1 = 1397, minus 20, plus 5.
  EXPECT_DOUBLE_EQ(combine_price(1000, 1.27, 1, 1.1, 20, 5), 1382);
  EXPECT_EQ(combine_price(0, 1.27, 25.5, 1.2, 0, 0), 0);
  EXPECT_THROW(combine_price(1e300, 1e10, 1, 1, 0, 0), ConversionError);
}

TEST(PriceRounding, ForintPricesEndIn90WithinTheirHundred) {
  struct Case {
    std::int32_t rounded;
    double ended;
  };
  for (const Case& c : std::vector<Case>{{123456, 123490},
                                         {99995, 99990},
                                         {0, 90},  // one figure: read as "00"
                                         {100, 190},
                                         {-5, -5},  // "-5": the tens place is the sign
                                         {-10, -90},
                                         {2147483647, 2147483690.0}}) {
    EXPECT_EQ(forint_ending(c.rounded), c.ended) << c.rounded;
  }
}

TEST(PriceRounding, SiteEndingsAsTheShopSeesThem) {
  struct Case {
    double calculated;
    std::string site, text;
  };
  for (const Case& c : std::vector<Case>{
           {123456.4, "hu", "123490"},
           {9.5, "hu", "90"},  // 10 (ties to even) keeps the tens place 1
           {-0.4, "hu", "90"},
           {10.40, "sk", "10.9"},
           {10.5, "sk", "10.9"},  // rounds to 10, cents 50
           {11.5, "sk", "12.9"},  // rounds to 12, cents -50
           {-1.2, "sk", "-0.1"},
           {12345.5, "cz", "12346"},
           {3e9, "cz", "3000000000"},
           {1234.5678, "pl", "1234.5678"},
       }) {
    EXPECT_EQ(format_general(round_for_site(c.calculated, c.site)), c.text)
        << c.calculated << " " << c.site;
  }
  EXPECT_THROW(round_for_site(3e9, "hu"), ConversionError);
  EXPECT_THROW(round_for_site(-3e9, "sk"), ConversionError);
}

TEST(PriceRounding, GeneralShortestForm) {
  struct Case {
    double value;
    std::string text;
  };
  for (const Case& c : std::vector<Case>{
           {123490, "123490"},
           {11.9, "11.9"},
           {0, "0"},
           {-0.0, "0"},
           {0.1 + 0.2, "0.3"},
           {2.0 / 3, "0.666666666666667"},
           {1e-7, "0.0000001"},
           {999999999999999.9, "1000000000000000"},
           {123456789012345678.0, "123456789012346000"},
           {std::numeric_limits<double>::infinity(), "INF"},
       }) {
    EXPECT_EQ(format_general(c.value), c.text) << c.text;
  }
}

}  // namespace
}  // namespace talmo
