#include "feedcheck/value_checks.h"

#include <gtest/gtest.h>

#include "feedcheck/display_text.h"

namespace talmo::feedcheck {
namespace {

// What the price checks say about `value`: "" when nothing, else the kind's id and the finding.
std::string price_verdict(const std::string& value, const PriceRule& rule) {
  Field field{"ar", value};
  std::vector<Finding> findings;
  check_price(&field, "ar", rule, findings);
  if (findings.empty())
    return "";
  return std::string(kind_id(findings[0].kind)) + ": " + findings[0].what;
}

TEST(PriceCheck, ForintPricesOfTheHungarianFeeds) {
  const struct {
    const char* value;
    const char* verdict;
  } cases[] = {
      {"265990", ""},
      {"99990.5", ""},
      {"1", ""},
      {"0", "price-not-computed: the value a price takes when it could not be computed"},
      {"90", "price-not-computed: the value a price takes when it could not be computed"},
      {"", "bad-price: no price"},
      {"-5", "bad-price: negative"},
      {"-0", "bad-price: zero"},
      {"0.00", "bad-price: zero"},
      {"00", "bad-price: zero"},
      {"1 299 990", "bad-price: not a number"},
      {"99990,5", "bad-price: not a number"},
      {"12.", "bad-price: not a number"},
      {".5", "bad-price: not a number"},
      {"A&T", "bad-price: not a number"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(price_verdict(c.value, forint_prices()), c.verdict) << '"' << c.value << '"';
}

TEST(PriceCheck, EuroPricesOfHeureka) {
  const struct {
    const char* value;
    const char* verdict;
  } cases[] = {
      {"814,90", ""},
      {"1200", ""},
      {"349.99", ""},
      {"0,91", ""},
      {"00", "price-not-computed: the value a price takes when it could not be computed"},
      {"0,90", "price-not-computed: the value a price takes when it could not be computed"},
      {"0", "bad-price: zero"},
      {"0.90", ""},
      {"12,345", "bad-price: more than 2 decimals"},
      {"-3,90", "bad-price: negative"},
      {"3,9,0", "bad-price: not a number"},
      {"", "bad-price: no price"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(price_verdict(c.value, euro_prices()), c.verdict) << '"' << c.value << '"';
}

TEST(PriceValue, ReadsBothDecimalSeparators) {
  EXPECT_EQ(price_value("814,90"), 814.9);
  EXPECT_EQ(price_value("265990"), 265990.0);
  EXPECT_EQ(price_value("1.5"), 1.5);
  EXPECT_EQ(price_value("1 200"), std::nullopt);
  EXPECT_EQ(price_value(""), std::nullopt);
}

TEST(Addresses, WebAddressesAndBlanks) {
  const struct {
    const char* value;
    bool no_blanks;
    const char* what;  // "" when the address is fine
  } cases[] = {
      {"https://www.kelvor.hu/a/", true, ""},
      {"http://www.kelvor.hu/a/", true, ""},
      {"", true, ""},  // a missing value is another check's business
      {"www.kelvor.hu/a/", true, "does not start with http:// or https://"},
      {"ftp://www.kelvor.hu/a/", true, "does not start with http:// or https://"},
      {"HTTPS://www.kelvor.hu/", true, "does not start with http:// or https://"},
      {"https://www.kelvor.hu/PACKARD BELL-01.jpg", true, "holds a blank"},
      {"https://www.kelvor.hu/a\tb", true, "holds a blank"},
      {"https://www.kelvor.hu/packard bell/", false, ""},
  };
  for (const auto& c : cases) {
    Field field{"URL", c.value};
    std::vector<Finding> findings;
    check_address(&field, "URL", c.no_blanks, findings);
    EXPECT_EQ(findings.empty() ? "" : findings[0].what, c.what) << c.value;
  }
}

TEST(Lengths, CountCharactersNotBytes) {
  EXPECT_EQ(character_count("Počítače"), 8u);
  EXPECT_EQ(character_count(""), 0u);
  Field name{"PRODUCTNAME", std::string(100, 'a') + std::string(100, 'a')};
  std::vector<Finding> findings;
  check_length(&name, "PRODUCTNAME", 200, findings);
  EXPECT_TRUE(findings.empty());
  name.value += "á";
  check_length(&name, "PRODUCTNAME", 200, findings);
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_EQ(findings[0].what, "201 characters, at most 200");
}

TEST(DisplayText, ControlBytesAndBrokenUtf8AreShownAndLongTextsCut) {
  const struct {
    std::string text;
    const char* shown_as;
  } cases[] = {
      {"Počítače a kancelária", "Počítače a kancelária"},
      {"line\nnext\r\tend", "line\\nnext\\r\\tend"},
      {"Latin-1 \xF5 byte", "Latin-1 \\xF5 byte"},
      {"cut \xC3", "cut \\xC3"},
      {std::string(60, 'x'), "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"},
      {std::string(59, 'x') + "áé",
       "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxá..."},
  };
  for (const auto& c : cases)
    EXPECT_EQ(shown(c.text), c.shown_as);
  EXPECT_EQ(visible(std::string(70, 'y')), std::string(70, 'y'));
}

}  // namespace
}  // namespace talmo::feedcheck
