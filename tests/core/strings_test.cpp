#include "core/strings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
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

// Each text with its value, or no value; the raising form gives the same value or raises.
TEST(Integers, AcceptSignAndDigitsOnly) {
  struct Case {
    std::string text;
    std::optional<std::int32_t> value;
  };
  for (const Case& c : std::vector<Case>{
           {"0", 0},
           {"27", 27},
           {"-5", -5},
           {"+7", 7},
           {"007", 7},
           {"2147483647", 2147483647},
           {"-2147483648", -2147483647 - 1},
           {"", std::nullopt},
           {" 1", std::nullopt},
           {"1 ", std::nullopt},
           {"1\n", std::nullopt},
           {"1.0", std::nullopt},
           {"1e3", std::nullopt},
           {"0x1A", std::nullopt},
           {"abc", std::nullopt},
           {"-", std::nullopt},
           {"+", std::nullopt},
           {"--1", std::nullopt},
           {"2147483648", std::nullopt},
           {"-2147483649", std::nullopt},
           {"99999999999999999999", std::nullopt},
       }) {
    EXPECT_EQ(parse_integer(c.text), c.value) << c.text;
    if (c.value)
      EXPECT_EQ(to_integer(c.text), *c.value) << c.text;
    else
      EXPECT_THROW(to_integer(c.text), ConversionError) << c.text;
  }
}

TEST(Numbers, AcceptDecimalPointAndExponent) {
  struct Case {
    std::string text;
    std::optional<double> value;
  };
  for (const Case& c : std::vector<Case>{
           {"1.5", 1.5},
           {"-12", -12},
           {"+0.5", 0.5},
           {"007.50", 7.5},
           {"1e3", 1000},
           {"1e+2", 100},
           {"2.5E-1", 0.25},
           {"2147483648", 2147483648.0},
           {"", std::nullopt},
           {"12.", std::nullopt},
           {".5", std::nullopt},
           {"1,5", std::nullopt},
           {"1 000", std::nullopt},
           {" 1", std::nullopt},
           {"1 ", std::nullopt},
           {"e5", std::nullopt},
           {"1e", std::nullopt},
           {"1.5e+", std::nullopt},
           {"abc", std::nullopt},
           {"0x10", std::nullopt},
           {"inf", std::nullopt},
           {"nan", std::nullopt},
           {"-", std::nullopt},
           {"1e999", std::nullopt},
           {"-1e400", std::nullopt},
           {"1.8e308", std::nullopt},
           {"1.7976931348623157e308", 1.7976931348623157e308},
           // Too small for a double: the nearest one, never a refusal.
           {"1e-400", 0},
           {"-1e-400", 0},
           {"0.5e-323", 4.9406564584124654e-324},
           {"4.9e-324", 4.9406564584124654e-324},
           {"2.2250738585072009e-308", 2.2250738585072009e-308},
       }) {
    EXPECT_EQ(parse_number(c.text), c.value) << c.text;
    if (c.value)
      EXPECT_EQ(to_number(c.text), *c.value) << c.text;
    else
      EXPECT_THROW(to_number(c.text), ConversionError) << c.text;
  }
  EXPECT_TRUE(std::signbit(to_number("-1e-400")));
}

}  // namespace
}  // namespace talmo
