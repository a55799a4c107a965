// Gross prices over tests/product/fixtures/products.sql, worked out by hand in the comments:
// net x tax x rate x margin - discount + extra profit, then the site's ending.
#include "product/pricing.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

class Pricing : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb::instance().reset_database();
    PrivateMariaDb::instance().run_sql_file(source_path("tests/product/fixtures/products.sql"));
  }

  DbSession db_;
};

std::string error_line(const std::string& statement) {
  return "Error in Query: \r\r" + statement + "\n\r\r\n";
}

TEST_F(Pricing, ComputedFixedAndAborted) {
  const std::string cz_tax = error_line(
      "SELECT tax_value FROM taxes WHERE tax_country='cz' ORDER BY tax_id DESC LIMIT 1;");
  const auto product_row = [](const std::string& id) {
    return error_line(
        "SELECT netto_darabar, uj_netto_darabar, kedvezmenyek, tobbletnyeresegek FROM "
        "laptop_adatbazis WHERE id='" +
        id + "' ORDER BY id DESC LIMIT 1;");
  };
  struct Case {
    std::string id, site;
    bool check_fix_ar, use_old_price;
    std::string price, console;
  };
  for (const Case& c : std::vector<Case>{
           // 1000 x 1.27 x 310 x 1.05 (Ingram Micro: HU) = 413385; - 5000 + 1000 -> 409390.
           {"1", "hu", true, false, "409390", ""},
           // 1000 x 1.2 x 1 (no EUR->EUR row) x 1.1 = 1320; - 20 + 10 = 1310 -> 1310.9.
           {"1", "sk", true, false, "1310.9", ""},
           // Fixed price ignored; currency EUR (newest over HUF):
           // 500 x 1.27 x 310 x 1.2 (DE->HU) = 236220 -> 236290.
           {"2", "hu", false, false, "236290", ""},
           // An empty fixed-price column is not "0", so it is a fixed price, cleaned to "0".
           {"2", "cz", true, false, "0", ""},
           // 100.5 x 1.2 x 1 x 1.15 = 138.69 -> 139 + 0.90; '5000' alone has no sk item.
           {"3", "sk", true, false, "139.9", ""},
           // Currency USD, its rate 'abc' unreadable, so 1.0:
           // 1000 x 1.27 x 1 x 1.12 (unknown supplier: SK) = 1422.4 -> 1490.
           {"4", "hu", true, false, "1490",
            error_line("SELECT er_value FROM exchange_rates WHERE er_from='USD' AND er_to='HUF' "
                       "ORDER BY er_id DESC LIMIT 1;")},
           // Net price 'n/a': 0, and the discount of that row is not read either: 0 -> 90.
           {"5", "hu", true, false, "90", product_row("5")},
           // 1000 x 1.27 x 310 x 1.12 = 440944; - 1e-400 (0) -> 440990.
           {"6", "hu", true, false, "440990", ""},
           // 1000 x 1.2 x 1 x 1.15 = 1380; - 4.9e-324 -> 1380.9.
           {"6", "sk", true, false, "1380.9", ""},
           {"7", "hu", true, false, "90", ""},   // a net price of 1e-400 is 0
           {"99", "hu", true, false, "90", ""},  // no laptop_adatbazis row: 0 before the ending
           // Texts that are not numbers stop the computation: the line names the statement then
           // in the cursor, and the result stays "0" or the fixed price read, though set aside.
           {"1", "cz", true, false, "0", cz_tax},
           {"8", "cz", false, true, "99990", cz_tax},
           {"9", "sk", true, false, "0", product_row("9")},  // discount '1.000,-'
           {"9", "hu", true, false, "0", product_row("9")},  // extra profit 'sok'
       }) {
    CapturedStdout out;
    EXPECT_EQ(GENERATE_PRICE_WITH_TAX(db_.query, c.id, c.site, c.check_fix_ar, c.use_old_price),
              c.price)
        << c.id << " " << c.site;
    EXPECT_EQ(out.text(), c.console) << c.id << " " << c.site;
  }
}

TEST_F(Pricing, WarehouseCountryLastMatchingKeyWins) {
  EXPECT_EQ(GETCOUNTRYFROMWAREHOUSE(db_.query, "1", "Ismeretlen bolt"), "SK");
  EXPECT_EQ(GETCOUNTRYFROMWAREHOUSE(db_.query, "1", "Ipon Datacomp"), "HU");  // table order
  EXPECT_EQ(GETCOUNTRYFROMWAREHOUSE(db_.query, "1", "maktorex cyberport.de"), "DE");
}

}  // namespace
}  // namespace talmo::testing
