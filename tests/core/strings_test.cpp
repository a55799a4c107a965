#include "core/strings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "core/errors.h"

namespace talmo {
namespace {

TEST(CaseFolding, FoldsAsciiLettersOnly) {
  EXPECT_EQ(upper_ascii("Tápegység ő"), "TáPEGYSéG ő");
  EXPECT_EQ(lower_ascii("ÁRVÍZ Tûrõ"), "ÁrvÍz tûrõ");
  EXPECT_TRUE(equals_ci("LAPTOP", "laptop"));
  EXPECT_FALSE(equals_ci("Á", "á"));
  EXPECT_TRUE(contains_ci("xAkC12", "akc"));
  EXPECT_FALSE(contains_ci("ab", "abc"));
  EXPECT_TRUE(contains_ci("abc", ""));
}

TEST(Trim, RemovesBlanksAndControlCharactersOnly) {
  EXPECT_EQ(trim(" \t\r\n a b \x01"), "a b");
  EXPECT_EQ(trim("\xC2\xA0x\xC2\xA0"), "\xC2\xA0x\xC2\xA0");  // a no-break space stays
  EXPECT_EQ(trim("   "), "");
}

TEST(Replace, AllOccurrencesWithoutRescanningReplacedText) {
  EXPECT_EQ(replace_all("a - b", " ", "-"), "a---b");
  EXPECT_EQ(replace_all("aaa", "a", "aa"), "aaaaaa");
  EXPECT_EQ(replace_all("abc", "", "x"), "abc");
  EXPECT_EQ(replace_all_ci("Van, VAN, van", "van", ""), ", , ");
  EXPECT_EQ(replace_all_ci("x-01-Y-01-", "-01-", "-02-"), "x-02-Y-02-");
}

TEST(ListPositions, MissingPositionRaisesOrReadsEmpty) {
  const StringList list{"a", "b"};
  EXPECT_EQ(item_at(list, 1), "b");
  EXPECT_THROW(item_at(list, 2), ListIndexError);
  EXPECT_EQ(item_or_empty(list, 2), "");
}

TEST(ToInteger, AcceptsSignAndDigitsOnly) {
  struct Case {
    std::string text;
    std::int32_t value;
  };
  for (const Case& c : std::vector<Case>{{"0", 0},
                                         {"27", 27},
                                         {"-5", -5},
                                         {"+7", 7},
                                         {"007", 7},
                                         {"2147483647", 2147483647},
                                         {"-2147483648", -2147483647 - 1}}) {
    EXPECT_EQ(to_integer(c.text), c.value) << c.text;
  }
  for (const std::string bad :
       {"", " 1", "1 ", "1.0", "0x1A", "abc", "-", "2147483648", "99999999999999999999"}) {
    EXPECT_THROW(to_integer(bad), ConversionError) << bad;
  }
}

TEST(ToNumber, AcceptsDecimalPointAndExponent) {
  struct Case {
    std::string text;
    double value;
  };
  for (const Case& c : std::vector<Case>{
           {"1.5", 1.5},
           {"-12", -12},
           {"+7", 7},
           {"1e3", 1000},
           {"2.5E-1", 0.25},
           {"1.7976931348623157e308", 1.7976931348623157e308},
           // Too small for a double: the nearest one, never a refusal.
           {"1e-400", 0},
           {"-1e-400", 0},
           {"0.5e-323", 4.9406564584124654e-324},
           {"4.9e-324", 4.9406564584124654e-324},
           {"2.2250738585072009e-308", 2.2250738585072009e-308},
       }) {
    EXPECT_EQ(to_number(c.text), c.value) << c.text;
  }
  EXPECT_TRUE(std::signbit(to_number("-1e-400")));
  for (const std::string bad : {"", "12.", ".5", "1,5", "1 000", "e5", "1e", "abc", "0x10", "inf",
                                "nan", " 1", "1e400", "-1e400", "1.8e308"}) {
    EXPECT_THROW(to_number(bad), ConversionError) << bad;
  }
}

}  // namespace
}  // namespace talmo
