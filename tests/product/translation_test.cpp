#include "product/translation.h"

#include <gtest/gtest.h>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

class Translation : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb::instance().reset_database();
    PrivateMariaDb::instance().run_sql(
        "INSERT INTO laptop_adatbazis_forditasok (id, szocikk, language, forditas) VALUES "
        "(1, 'Garancia', 'SK', 'Záruka (régi)'), (2, 'Garancia', 'HU', 'Garancia'), "
        "(3, 'Garancia', 'SK', 'Záruka'), (4, 'Kijelzõ', 'CZ', 'Displej'), "
        "(9, 'Garancia', 'CZ', 'Záruka CZ'), (5, 'Garancia', 'CZ', 'starší');");
  }

  DbSession db_;
};

TEST_F(Translation, NewestRowOfTheSiteLanguageWins) {
  struct Case {
    std::string word, site, text;
  };
  CapturedStdout out;
  for (const Case& c : std::vector<Case>{
           {"Garancia", "sk", "Záruka"},
           {"Garancia", "SK", "Záruka"},
           {"Garancia", "hu", "Garancia"},
           {"Garancia", "cz", "Záruka CZ"},
           {"Kijelzõ", "cz", "Displej"},
           {"Kijelzõ", "sk", ""},  // no fall-back to the Hungarian word
           {"Ismeretlen", "hu", ""},
       }) {
    EXPECT_EQ(GETTRANSLATION(db_.query, c.word, c.site), c.text) << c.word << " " << c.site;
  }
  EXPECT_EQ(out.text(), "");
}

TEST_F(Translation, QuoteInTheWordPrintsTheErrorLine) {
  CapturedStdout out;
  EXPECT_EQ(GETTRANSLATION(db_.query, "Acer's", "sk"), "");
  EXPECT_EQ(out.text(),
            "Error in Query: \r\rSELECT forditas FROM laptop_adatbazis_forditasok WHERE "
            "szocikk='Acer's' AND language='SK' ORDER BY id DESC LIMIT 1;\n\r\r\n");
}

}  // namespace
}  // namespace talmo::testing
