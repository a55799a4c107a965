// Short descriptions against the private database: the comma rules, the translated accessories
// and the error line when a stored value cannot be read.
#include "description/short_description.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

const std::string kSelect =
    "SELECT processzor, kijelzo, memoria, merevlemez, grafikus_kartya, optikai_meghajto, "
    "kiegeszitok, operacios_rendszer FROM laptop_adatbazis WHERE id='";

// The pieces of product 1, as the builders print them.
const std::string kFullStart =
    "Intel Core i5-8250U (4 x 1.6 GHz / 3.4 GHz Turbo, 6 MB Cache), 15.6 Full HD (1920x1080) "
    "LED matt, 8 GB DDR4 2400 MHz, 256 GB SSD + 1 TB HDD 5400 rpm, NVIDIA GeForce MX150 2 GB "
    "GDDR5, DVD-RW, ";
const std::string kFullOs = "Windows 10 Home;64 bit";

class ShortDescription : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb& db = PrivateMariaDb::instance();
    db.reset_database();
    db.run_sql(
        "INSERT INTO laptop_adatbazis (id, processzor, kijelzo, memoria, merevlemez, "
        "grafikus_kartya, optikai_meghajto, kiegeszitok, operacios_rendszer) VALUES "
        "(1, 'Intel|Core i5-8250U|1.6 GHz|3.4 GHz|4|6 MB', '15.6|Full HD|1920x1080|1|1|0|', "
        "'8 GB|DDR4|2400 MHz', '1|256 GB|SSD||1^1|1 TB|HDD|5400 rpm|1', "
        "'1|NVIDIA|GeForce MX150|2 GB|GDDR5||1', '1|DVD-RW|1', 'Táska', "
        "'1|1|Windows 10 Home;64 bit|1'), "
        "(2, 'AMD|A6', '15.6||||||', NULL, NULL, NULL, NULL, NULL, NULL), "
        "(3, NULL, NULL, NULL, NULL, NULL, NULL, NULL, '1|1|Windows 10 Home|1'), "
        "(4, 'AMD|A6', NULL, '8 GB;DDR4', NULL, NULL, NULL, NULL, NULL), "
        "(5, 'AMD|A6', NULL, '8 GB;DDR4', '1|500 GB|SSD||1', NULL, NULL, NULL, NULL), "
        "(6, 'AMD|A6', NULL, NULL, NULL, NULL, NULL, 'táska; egér', '1|1|Linux|1'), "
        "(8, 'AMD|A6', NULL, NULL, NULL, NULL, '0|DVD-RW|2', NULL, NULL), "
        "(9, '   ', '  ', NULL, '0|500 GB|SSD||1', '|NVIDIA|GT 630M', '', 'Táska', NULL), "
        "(20, 'AMD|A6', '15.6|Full HD|1920x1080', NULL, NULL, NULL, NULL, NULL, NULL), "
        "(21, 'AMD|A6', NULL, NULL, '1|500 GB|SSD||egy', NULL, NULL, NULL, NULL), "
        "(22, 'AMD|A6', NULL, NULL, NULL, NULL, NULL, 'Táska', 'x|1|Linux|1'), "
        "(23, 'AMD|A6', NULL, NULL, NULL, NULL, NULL, 'Acer''s táska', '1|1|Linux|1');");
    db.run_sql(
        "INSERT INTO laptop_adatbazis_forditasok (id, szocikk, language, forditas) VALUES "
        "(1, 'Táska', 'HU', 'Táska'), (2, 'Táska', 'SK', 'Taška'), "
        "(3, 'táska; egér', 'SK', 'taška; myš');");
  }

  DbSession db_;
};

TEST_F(ShortDescription, PiecesJoinedByCommas) {
  struct Case {
    std::string id, site, text;
  };
  CapturedStdout out;
  for (const Case& c : std::vector<Case>{
           {"1", "hu", kFullStart + "Táska, " + kFullOs},
           {"1", "sk", kFullStart + "Taška, " + kFullOs},
           {"1", "cz", kFullStart + kFullOs},  // no translation: the accessories are left out
           // The processor's trailing blank stays before the comma.
           {"2", "hu", "AMD A6 , 15.6"},
           // Nothing before the operating system, so no comma either.
           {"3", "hu", "Windows 10 Home"},
           // A ";" survives in the last piece and goes from the pieces before it.
           {"4", "hu", "AMD A6 , 8 GB;DDR4"},
           {"5", "hu", "AMD A6 , 8 GBDDR4, 500 GB SSD"},
           {"6", "sk", "AMD A6 , taška myš, Linux"},
           // Absent drive, disk and card, blank processor and display: nothing but accessories.
           {"8", "hu", "AMD A6 "},
           {"9", "hu", "Táska"},
           {"99", "hu", ""},
       }) {
    EXPECT_EQ(GENERATE_PRODUCT_S_DESC(db_.query, c.id, c.site), c.text) << c.id << " " << c.site;
  }
  EXPECT_EQ(out.text(), "");
}

TEST_F(ShortDescription, FeedWrappersGiveTheSameText) {
  EXPECT_EQ(GENERATE_TALMO_TERMEKLEIRAS_SHORT(db_.query, "1", "hu"),
            kFullStart + "Táska, " + kFullOs);
  EXPECT_EQ(GENERATE_HEUREKASK_DESCRIPTION(db_.query, "1", "sk"), kFullStart + "Taška, " + kFullOs);
}

TEST_F(ShortDescription, UnreadableValueEmptiesTheDescription) {
  struct Case {
    std::string id, why;
  };
  for (const Case& c : std::vector<Case>{
           {"20", "a display with fewer than seven sub-values"},
           {"21", "a disk count that is not a number"},
           // Read before the accessories are translated, so the line names this statement.
           {"22", "an operating system presence that is not a number"},
           {"1'", "a quote in the id"},
       }) {
    CapturedStdout out;
    EXPECT_EQ(GENERATE_PRODUCT_S_DESC(db_.query, c.id, "sk"), "") << c.why;
    EXPECT_EQ(out.text(), "Error in Query: \r\r" + kSelect + c.id + "';\n\r\r\n") << c.why;
  }
}

TEST_F(ShortDescription, FailedTranslationOnlyDropsTheAccessories) {
  CapturedStdout out;
  EXPECT_EQ(GENERATE_PRODUCT_S_DESC(db_.query, "23", "sk"), "AMD A6 , Linux");
  EXPECT_EQ(out.text(),
            "Error in Query: \r\rSELECT forditas FROM laptop_adatbazis_forditasok WHERE "
            "szocikk='Acer's táska' AND language='SK' ORDER BY id DESC LIMIT 1;\n\r\r\n");
}

}  // namespace
}  // namespace talmo::testing
