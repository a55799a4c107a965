#include "description/html_helpers.h"

#include <gtest/gtest.h>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

class TrueOrFalseImage : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb::instance().reset_database();
    PrivateMariaDb::instance().run_sql(
        "INSERT INTO laptop_adatbazis_forditasok (szocikk, language, forditas) VALUES "
        "('A készülék rendelkezik ezzel az elemmel', 'HU', 'A készülék rendelkezik ezzel az "
        "elemmel'), ('A készülék rendelkezik ezzel az elemmel', 'SK', 'Zariadenie má tento "
        "prvok'), ('A készülék nem rendelkezik ezzel az elemmel', 'SK', 'Zariadenie nemá "
        "tento prvok');");
  }

  DbSession db_;
};

TEST_F(TrueOrFalseImage, AltTextTranslatedIntoTheSiteLanguage) {
  struct Case {
    bool tf;
    std::string site, image;
  };
  CapturedStdout out;
  for (const Case& c : std::vector<Case>{
           {true, "sk",
            "<img style=\"vertical-align: middle;\" alt=\"Zariadenie má tento prvok\" "
            "src=\"images/leiras/true.png\" />"},
           {false, "sk",
            "<img style=\"vertical-align: middle;\" alt=\"Zariadenie nemá tento prvok\" "
            "src=\"images/leiras/false.png\" />"},
           {true, "hu",
            "<img style=\"vertical-align: middle;\" alt=\"A készülék rendelkezik ezzel az "
            "elemmel\" src=\"images/leiras/true.png\" />"},
           // No row for the language: the alt text stays empty.
           {false, "cz",
            "<img style=\"vertical-align: middle;\" alt=\"\" src=\"images/leiras/false.png\" />"},
       }) {
    EXPECT_EQ(HTML_ADDTRUEORFALSEIMAGE(c.tf, db_.query, c.site), c.image) << c.tf << c.site;
  }
  EXPECT_EQ(out.text(), "");
}

}  // namespace
}  // namespace talmo::testing
