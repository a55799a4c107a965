#include "core/strings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <string>

#include "core/errors.h"

namespace talmo {
namespace {

TEST(CaseFolding, FoldsAsciiLettersOnlyAndTrimRemovesBlanksAndControls) {
  EXPECT_EQ(upper_ascii("Tápegység ő"), "TáPEGYSéG ő");
  EXPECT_EQ(lower_ascii("ÁRVÍZ Tûrõ"), "ÁrvÍz tûrõ");
  EXPECT_TRUE(equals_ci("LAPTOP", "laptop"));
  EXPECT_FALSE(equals_ci("Á", "á"));
  EXPECT_TRUE(contains_ci("xAkC12", "akc"));
  EXPECT_FALSE(contains_ci("ab", "abc"));
  EXPECT_TRUE(contains_ci("abc", ""));
  // Trimming removes blanks and control characters only.
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
  // A missing list position raises or reads empty.
  EXPECT_EQ(item_at({"a", "b"}, 1), "b");
  EXPECT_THROW(item_at({"a", "b"}, 2), ListIndexError);
  EXPECT_EQ(item_or_empty({"a", "b"}, 2), "");
}

// Each accepted text with its value; the raising form gives the same value. Refused texts have
// no value, and the raising form raises.
TEST(Integers, AcceptSignAndDigitsOnly) {
  const std::pair<const char*, std::int32_t> accepted[] = {{"27", 27},
                                                           {"-5", -5},
                                                           {"+7", 7},
                                                           {"007", 7},
                                                           {"2147483647", 2147483647},
                                                           {"-2147483648", -2147483647 - 1}};
  for (const auto& [text, value] : accepted) {
    EXPECT_EQ(parse_integer(text), value) << text;
    EXPECT_EQ(to_integer(text), value) << text;
  }
  for (const char* text : {"", " 1", "1 ", "1\n", "1.0", "1e3", "0x1A", "-", "--1", "2147483648",
                           "-2147483649", "99999999999999999999"}) {
    EXPECT_EQ(parse_integer(text), std::nullopt) << text;
    EXPECT_THROW(to_integer(text), ConversionError) << text;
  }
}

TEST(Numbers, AcceptDecimalPointAndExponent) {
  const std::pair<const char*, double> accepted[] = {
      {"1.5", 1.5},
      {"-12", -12},
      {"+0.5", 0.5},
      {"007.50", 7.5},
      {"1e3", 1000},
      {"1e+2", 100},
      {"2.5E-1", 0.25},
      {"2147483648", 2147483648.0},
      {"1.7976931348623157e308", 1.7976931348623157e308},
      // Too small for a double: the nearest one, never a refusal.
      {"1e-400", 0},
      {"-1e-400", 0},
      {"0.5e-323", 4.9406564584124654e-324},
      {"4.9e-324", 4.9406564584124654e-324},
      {"2.2250738585072009e-308", 2.2250738585072009e-308}};
  for (const auto& [text, value] : accepted) {
    EXPECT_EQ(parse_number(text), value) << text;
    EXPECT_EQ(to_number(text), value) << text;
  }
  EXPECT_TRUE(std::signbit(to_number("-1e-400")));
  for (const char* text : {"", "12.", ".5", "1,5", "1 000", " 1", "1 ", "e5", "1e", "1.5e+", "0x10",
                           "inf", "nan", "-", "1e400", "-1e400", "1.8e308"}) {
    EXPECT_EQ(parse_number(text), std::nullopt) << text;
    EXPECT_THROW(to_number(text), ConversionError) << text;
  }
}

}  // namespace
}  // namespace talmo
