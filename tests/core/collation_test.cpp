// Keys compared as the shop's schema compares them, for the keys the tool can be sure about.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "core/collation.h"

namespace talmo::testing {
namespace {

TEST(Collation, ComparableKeysFoldCaseAndDropTrailingBlanksOnly) {
  const std::pair<const char*, const char*> certain[] = {
      {"HU", "hu"}, {"Hu  ", "hu"}, {" hu", " hu"}, {"   ", ""}, {"a'b", "a'b"}};
  for (const auto& [key, comparable] : certain)
    EXPECT_EQ(comparable_key(key), comparable) << key;
  for (const std::string& key : {std::string("hu\t"), std::string("h\0u", 3), std::string("hú")})
    EXPECT_EQ(comparable_key(key), std::nullopt) << key;
}

// Canonical ids are how the id list writes them; digits_value reads any run of digits.
TEST(Collation, OnlyDigitsAreReadAsNumbers) {
  EXPECT_EQ(canonical_id_value("0"), 0);
  EXPECT_EQ(canonical_id_value("123456789012345678"), 123456789012345678);
  for (const char* text : {"1234567890123456789", "", "07", "-7", "+7", "7 ", " 7", "1e3"})
    EXPECT_EQ(canonical_id_value(text), std::nullopt) << text;
  EXPECT_EQ(digits_value("007"), 7);
  EXPECT_EQ(digits_value("999999999999999"), 999999999999999);
  for (const char* text : {"1000000000000000", "", "7 ", "-7", "7.0"})
    EXPECT_EQ(digits_value(text), std::nullopt) << text;
}

}  // namespace
}  // namespace talmo::testing
