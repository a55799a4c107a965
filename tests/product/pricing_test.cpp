// Gross prices against the private database. Expected prices are worked out by hand in the
// comments: net x tax x rate x margin - discount + extra profit, then the site's ending.
#include "product/pricing.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/strings.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

// Taxes hu 27 (over an older 25), sk 20, cz 21. Rates EUR->HUF 310 (over 300, stored with
// blanks), EUR->CZK 25, USD->HUF unreadable, no EUR->EUR row. Margins SK->HU 12 (over 10),
// HU->HU 5, HU->SK 10, DE->HU 20, DE->SK 8, SK->SK 15.
void load_price_tables() {
  PrivateMariaDb& db = PrivateMariaDb::instance();
  db.run_sql(
      "INSERT INTO taxes (tax_id, tax_country, tax_value) VALUES "
      "(1, 'hu', '25'), (2, 'hu', '27'), (3, 'sk', '20'), (4, 'cz', '21');");
  db.run_sql(
      "INSERT INTO exchange_rates (er_id, er_from, er_to, er_value) VALUES "
      "(1, 'EUR', 'HUF', '300'), (2, 'EUR', 'HUF', ' 310 '), (3, 'EUR', 'CZK', '25'), "
      "(4, 'USD', 'HUF', 'abc');");
  db.run_sql(
      "INSERT INTO profit_margins (profit_id, profit_from, profit_to, profit_value) VALUES "
      "(1, 'SK', 'HU', '10'), (2, 'SK', 'HU', '12'), (3, 'HU', 'HU', '5'), (4, 'HU', 'SK', '10'), "
      "(5, 'DE', 'HU', '20'), (6, 'DE', 'SK', '8'), (7, 'SK', 'SK', '15');");
}

class Pricing : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb& db = PrivateMariaDb::instance();
    db.reset_database();
    load_price_tables();
    db.run_sql(
        "INSERT INTO laptop_adatbazis (id, published, netto_darabar, uj_netto_darabar, "
        "kedvezmenyek, tobbletnyeresegek, nagyraktar) VALUES "
        "(1, 1, '900', '1000', '5000|20|500', '1000|10|100', 'Ingram Micro SK'), "
        "(2, 1, '400', '500', '', NULL, 'Notebooksbilliger.de'), "
        "(3, 1, '100', '100,50', '5000', NULL, 'ASBIS'), "
        "(4, 1, '1000', '1000', '0|0|0', '0|0|0', 'Ismeretlen bolt'), "
        "(5, 1, '1000', 'n/a', '300|0|0', '0|0|0', 'ASBIS'), "
        "(6, 1, '1000', '1000', '1e-400|4.9e-324|0', '0|0|0', 'ASBIS'), "
        "(7, 1, '1000', '1e-400', '0|0|0', '0|0|0', 'ASBIS');");
    // Product 2: the newest row of type 0 counts; the type-1 row is another kind of product.
    db.run_sql(
        "INSERT INTO fix_arak (fix_id, fix_product_id, fix_product_type_id, fix_ar_hu, fix_ar_sk, "
        "fix_ar_cz) VALUES (1, '2', '0', '88000', '777', '5000'), "
        "(2, '2', '0', '99 990', '0', NULL), (3, '2', '1', '55555', '555', '55');");
    db.run_sql(
        "INSERT INTO product_valuta (prod_val_id, prod_val_product_type_id, prod_val_product_id, "
        "prod_val_valuta) VALUES (1, '0', '2', 'HUF'), (2, '0', '2', 'EUR'), "
        "(3, '0', '4', 'EUR'), (4, '0', '4', 'USD'), (5, '1', '4', 'CZK');");
  }

  DbSession db_;
};

struct PriceCase {
  std::string id, site;
  bool check_fix_ar, use_old_price;
  std::string price;
};

TEST_F(Pricing, ComputedAndFixedPrices) {
  CapturedStdout out;
  for (const PriceCase& c : std::vector<PriceCase>{
           // 1000 x 1.27 x 310 x 1.05 = 413385; - 5000 + 1000 = 409385 -> 409390.
           {"1", "hu", true, false, "409390"},
           // 1000 x 1.2 x 1 (no EUR->EUR row) x 1.1 = 1320; - 20 + 10 = 1310 -> 1310.9.
           {"1", "sk", true, false, "1310.9"},
           // 1000 x 1.21 x 25 x 1 (no HU->CZ row) = 30250; - 500 + 100 = 29850.
           {"1", "cz", true, false, "29850"},
           // Fixed price ignored; currency EUR (newest over HUF):
           // 500 x 1.27 x 310 x 1.2 (DE->HU) = 236220 -> 236290.
           {"2", "hu", false, false, "236290"},
           // Fixed "0" means none: 500 x 1.2 x 1 x 1.08 (DE->SK) = 648; empty discount -> 648.9.
           {"2", "sk", true, false, "648.9"},
           // An empty fixed-price column is not "0", so it is a fixed price, cleaned to "0".
           {"2", "cz", true, false, "0"},
           // 100.5 x 1.2 x 1 x 1.15 = 138.69 -> 139 + 0.90; '5000' alone has no sk item.
           {"3", "sk", true, false, "139.9"},
           // 100.5 x 1.27 x 310 x 1.12 = 44314.872; - 5000 = 39314.872 -> 39315 -> 39390.
           {"3", "hu", true, false, "39390"},
           // Amounts too small for a double read as the nearest one, never as a failure:
           // 1000 x 1.27 x 310 x 1.12 (SK->HU) = 440944; - 0 -> 440990.
           {"6", "hu", true, false, "440990"},
           // 1000 x 1.2 x 1 x 1.15 (SK->SK) = 1380; - 4.9e-324 -> 1380.9.
           {"6", "sk", true, false, "1380.9"},
           // A net price of 1e-400 is 0 -> 90.
           {"7", "hu", true, false, "90"},
           // No laptop_adatbazis row: 0 before the ending.
           {"99", "hu", true, false, "90"},
       }) {
    EXPECT_EQ(GENERATE_PRICE_WITH_TAX(db_.query, c.id, c.site, c.check_fix_ar, c.use_old_price),
              c.price)
        << c.id << " " << c.site << " " << c.check_fix_ar << c.use_old_price;
  }
  EXPECT_EQ(out.text(), "");
}

TEST_F(Pricing, UnreadableValueOfALookupKeepsItsDefault) {
  const std::string rate_line =
      "Error in Query: \r\rSELECT er_value FROM exchange_rates WHERE er_from='USD' AND "
      "er_to='HUF' ORDER BY er_id DESC LIMIT 1;\n\r\r\n";
  const std::string row_line =
      "Error in Query: \r\rSELECT netto_darabar, uj_netto_darabar, kedvezmenyek, "
      "tobbletnyeresegek FROM laptop_adatbazis WHERE id='5' ORDER BY id DESC LIMIT 1;\n\r\r\n";
  struct Case {
    std::string id, price, console;
  };
  for (const Case& c : std::vector<Case>{
           // Currency USD, its rate 'abc' unreadable, so 1.0:
           // 1000 x 1.27 x 1 x 1.12 (unknown supplier -> SK) = 1422.4 -> 1490.
           {"4", "1490", rate_line},
           // Net price 'n/a': 0, and the discount of that row is not read either: 0 -> 90.
           {"5", "90", row_line},
       }) {
    CapturedStdout out;
    EXPECT_EQ(GENERATE_PRICE_WITH_TAX(db_.query, c.id, "hu", true, false), c.price) << c.id;
    EXPECT_EQ(out.text(), c.console) << c.id;
  }
}

TEST_F(Pricing, WarehouseCountryLastMatchingKeyWins) {
  struct Case {
    std::string warehouse, country;
  };
  for (const Case& c : std::vector<Case>{
           {"Ismeretlen bolt", "SK"},
           {"a&t investments", "HU"},
           {"Ipon Datacomp", "HU"},  // table order decides, not the place in the name
           {"maktorex cyberport.de", "DE"},
       }) {
    EXPECT_EQ(GETCOUNTRYFROMWAREHOUSE(db_.query, "1", c.warehouse), c.country) << c.warehouse;
  }
}

// A tax, discount or extra-profit text that is not a number stops the whole computation.
class PricingAborts : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb& db = PrivateMariaDb::instance();
    db.reset_database();
    db.run_sql(
        "INSERT INTO taxes (tax_id, tax_country, tax_value) VALUES "
        "(1, 'hu', '27'), (2, 'hu', '27%'), (3, 'cz', '21');");
    db.run_sql(
        "INSERT INTO laptop_adatbazis (id, published, netto_darabar, uj_netto_darabar, "
        "kedvezmenyek, tobbletnyeresegek, nagyraktar) VALUES "
        "(1, 1, '1000', '1000', '0|0|0', '0|0|0', 'ASBIS'), "
        "(2, 1, '1000', '1000', '0|0|0', '0|0|0', 'ASBIS'), "
        "(3, 1, '1000', '1000', '0|0|1.000,-', '0|0|0', 'ASBIS'), "
        "(4, 1, '1000', '1000', '0|0|0', '0|0|sok', 'ASBIS');");
    db.run_sql(
        "INSERT INTO fix_arak (fix_id, fix_product_id, fix_product_type_id, fix_ar_hu, fix_ar_sk, "
        "fix_ar_cz) VALUES (1, '2', '0', '99 990', '0', '0');");
  }

  DbSession db_;
};

TEST_F(PricingAborts, ErrorLineCarriesTheStatementThenInTheCursor) {
  const std::string hu_tax =
      "Error in Query: \r\rSELECT tax_value FROM taxes WHERE tax_country='hu' ORDER BY tax_id "
      "DESC LIMIT 1;\n\r\r\n";
  const std::string product_row =
      "Error in Query: \r\rSELECT netto_darabar, uj_netto_darabar, kedvezmenyek, "
      "tobbletnyeresegek FROM laptop_adatbazis WHERE id='@' ORDER BY id DESC LIMIT 1;\n\r\r\n";
  struct Case {
    PriceCase price;
    std::string output;
  };
  for (const Case& c : std::vector<Case>{
           {{"1", "hu", true, false, "0"}, hu_tax},  // '27%'
           // The fixed price read before the abort stays the result, though it was set aside.
           {{"2", "hu", false, true, "99990"}, hu_tax},
           // cz discount '1.000,-' cleans to '1000.-'; cz extra profit 'sok'.
           {{"3", "cz", true, false, "0"}, replace_all(product_row, "@", "3")},
           {{"4", "cz", true, false, "0"}, replace_all(product_row, "@", "4")},
       }) {
    CapturedStdout out;
    const PriceCase& p = c.price;
    EXPECT_EQ(GENERATE_PRICE_WITH_TAX(db_.query, p.id, p.site, p.check_fix_ar, p.use_old_price),
              p.price)
        << p.id << " " << p.site;
    EXPECT_EQ(out.text(), c.output) << p.id << " " << p.site;
  }
}

}  // namespace
}  // namespace talmo::testing
