// The Árukereső fields and line against the private database: trimming, CSV quoting and the
// three picture columns.
#include <gtest/gtest.h>

#include "feeds/arukereso.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

class ArukeresoFields : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb::instance().reset_database();
    PrivateMariaDb::instance().run_sql(
        "INSERT INTO laptop_adatbazis (id, published, sorszam, gyarto, nev, tipusmegnevezes, "
        "tipus, product_number, netto_darabar, uj_netto_darabar, nagyraktar) VALUES "
        "(1, 1, '11130', 'Asus', 'K55VD-SX1', 'K55VD 15.6\" HD, fekete', 'k-01-x-01-', "
        "'  PN 7 ', '90000', '100000', 'Ipon'), "
        "(2, 1, '11131', NULL, NULL, NULL, NULL, NULL, '', '', ''), "
        "(3, 1, '11132', ' Asus\\t', NULL, NULL, NULL, '', '', '', '');");
    PrivateMariaDb::instance().run_sql(
        "INSERT INTO taxes (tax_country, tax_value) VALUES ('hu', '27');"
        "INSERT INTO profit_margins (profit_from, profit_to, profit_value) VALUES "
        "('HU', 'HU', '10');");
  }

  DbSession db_;
};

TEST_F(ArukeresoFields, ManufacturerTrimmedProductNumberAsStored) {
  struct Case {
    std::string id;
    std::string manufacturer;
    std::string product_number;
  };
  const Case cases[] = {{"1", "Asus", "  PN 7 "}, {"3", "Asus", ""}, {"2", "", ""}, {"99", "", ""}};
  CapturedStdout out;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.id);
    EXPECT_EQ(GENERATE_ARUKERESO_MANUFACTURER(db_.query, c.id, "hu"), c.manufacturer);
    EXPECT_EQ(GENERATE_ARUKERESO_PRODUCT_NUMBER(db_.query, c.id, "hu"), c.product_number);
  }
  EXPECT_EQ(out.text(), "");
  EXPECT_EQ(GENERATE_ARUKERESO_PRODUCT_NUMBER(db_.query, "1'", "hu"), "");
  EXPECT_EQ(out.text(),
            "Error in Query: \r\rSELECT product_number FROM laptop_adatbazis WHERE id='1'';\n"
            "\r\r\n");
}

// The inch mark of the name is doubled, its comma stays; every "-01-" of the picture name moves
// on to "-02-" and "-03-" in the next two columns.
TEST_F(ArukeresoFields, LineQuotesEveryFieldAndNumbersThePictures) {
  CapturedStdout out;
  const std::string line = GENERATE_ARUKERESO_LINE(db_.query, "1", "hu");
  const std::string picture =
      "https://www.kelvor.hu/images/stories/virtuemart/product/ASUS-K-01-X-01--0";
  const std::string head =
      "\"Asus\",\"K55VD 15.6\"\" HD, fekete - \",\"Főoldal>Számítógép>Notebook\","
      "\"https://www.kelvor.hu//asus-k55vd-sx1-11130-elado/"
      "?utm_source=arukereso&utm_medium=11130-asus&utm_campaign=konverzio\","
      "\"139790\",\"" +
      picture + "1-www.kelvor.hu.jpg\",\"" +
      "https://www.kelvor.hu/images/stories/virtuemart/product/ASUS-K-02-X-02--02-www.kelvor.hu.jpg"
      "\",\"" +
      "https://www.kelvor.hu/images/stories/virtuemart/product/ASUS-K-03-X-03--03-www.kelvor.hu.jpg"
      "\",\"<style type=\"\"text/css\"\">";
  EXPECT_EQ(line.substr(0, head.size()), head);
  const std::string tail = "</p></div></div>\",\"1\",\"  PN 7 \"";
  ASSERT_GE(line.size(), tail.size());
  EXPECT_EQ(line.substr(line.size() - tail.size()), tail);
  EXPECT_EQ(line.find('\n'), std::string::npos);
}

}  // namespace
}  // namespace talmo::testing
