// Keys compared as the shop's schema compares them, for the keys the tool can be sure about.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "core/collation.h"

namespace talmo::testing {
namespace {

TEST(Collation, ComparableKeysFoldCaseAndDropTrailingBlanksOnly) {
  const struct {
    std::string key;
    std::optional<std::string> comparable;
  } cases[] = {
      {"hu", "hu"},
      {"HU", "hu"},
      {"Hu  ", "hu"},
      {" hu", " hu"},
      {"12 ", "12"},
      {"", ""},
      {"   ", ""},
      {"a'b", "a'b"},
      {"hu\t", std::nullopt},
      {"hu\r", std::nullopt},
      {"hú", std::nullopt},
      {std::string("h\0u", 3), std::nullopt},
      {"\x7f", std::nullopt},
  };
  for (const auto& c : cases)
    EXPECT_EQ(comparable_key(c.key), c.comparable) << c.key;
}

TEST(Collation, CanonicalIdsAreHowTheIdListWritesThem) {
  const struct {
    const char* text;
    std::optional<std::int64_t> value;
  } cases[] = {
      {"0", 0},
      {"7", 7},
      {"10234", 10234},
      {"123456789012345678", 123456789012345678},
      {"1234567890123456789", std::nullopt},
      {"", std::nullopt},
      {"07", std::nullopt},
      {"00", std::nullopt},
      {"-7", std::nullopt},
      {"+7", std::nullopt},
      {"7 ", std::nullopt},
      {" 7", std::nullopt},
      {"7'", std::nullopt},
      {"1e3", std::nullopt},
  };
  for (const auto& c : cases)
    EXPECT_EQ(canonical_id_value(c.text), c.value) << c.text;
}

TEST(Collation, DigitsAreTheOnlyTextsReadAsNumbers) {
  const struct {
    const char* text;
    std::optional<std::int64_t> value;
  } cases[] = {
      {"7", 7},
      {"007", 7},
      {"0", 0},
      {"999999999999999", 999999999999999},
      {"1000000000000000", std::nullopt},
      {"", std::nullopt},
      {"7 ", std::nullopt},
      {"-7", std::nullopt},
      {"7.0", std::nullopt},
  };
  for (const auto& c : cases)
    EXPECT_EQ(digits_value(c.text), c.value) << c.text;
}

}  // namespace
}  // namespace talmo::testing
