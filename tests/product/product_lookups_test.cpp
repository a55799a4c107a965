// Pricing, product names and product kinds over tests/product/fixtures/products.sql. Expected
// prices are worked out by hand in the comments: net x tax x rate x margin - discount + extra
// profit, then the site's ending. Products 100 on hold only the column their name row is about,
// so the expected name shows exactly what one stored value contributes.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "product/categories.h"
#include "product/pricing.h"
#include "product/product_name.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

struct Row {
  int id;
  std::string column, value, name;
};

// Without a processor part every part is preceded by ", ".
const std::vector<Row> kRows = {
    // Processor: the marketing words go in list order ("core " before "® "), ignoring case,
    // then the blanks at the ends.
    {100, "processzor", "Intel|Intel® Core i5-3210M|2.5 GHz", "Inteli5-3210M"},
    {101, "processzor", "AMD|E-450 Dual-Core", "E-450"},         // "dual-core" before "dual-"
    {102, "processzor", "Intel|Atom N2600 Core", "N2600 Core"},  // "core " needs its blank
    {104, "processzor",
     "x|Pentium Celeron Qualcomm Xeon Exynos OMAP ARM Turion II Phenom II Athlon II Fusion 2 Duo "
     "Triple-42 \xC2\x99"
     "250 T30S",
     "42"},
    {120, "kijelzo", "13.3\"\"", ", 13.3"},          // size without its inch signs
    {130, "merevlemez", "0||^1|1TB|HDD", ", +1TB"},  // every entry's size, present or not
    // Graphics: type and trimmed memory of the first card only; no type, no part.
    {150, "grafikus_kartya", "1|NVIDIA|GT 630M| 1GB |GDDR3||1^1|Intel|HD 4000||||1",
     ", GT 630M 1GB"},
    {151, "grafikus_kartya", "1|Intel||1GB", ""},
    // Optical drive: only with the flag exactly "1".
    {160, "optikai_meghajto", "0|DVD-RW", ""},
    {161, "optikai_meghajto", "1|BLU-RAY író", ", Blu-Ray"},
    {162, "optikai_meghajto", "1|Külső CD-ROM", ", Külső CD-ROM"},
    // Operating system: the last matching keyword of the list wins, whatever the text's order.
    {180, "operacios_rendszer", "Mac OS with Linux tools", ", OS X"},
};

class ProductLookups : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb& db = PrivateMariaDb::instance();
    db.reset_database();
    db.run_sql_file(source_path("tests/product/fixtures/products.sql"));
    std::string sql;
    for (const Row& row : kRows) {
      sql += "INSERT INTO laptop_adatbazis (id, `" + row.column + "`) VALUES (" +
             std::to_string(row.id) + ", '" + row.value + "');\n";
    }
    db.run_sql(sql);
  }

  DbSession db_;
};

std::string error_line(const std::string& statement) {
  return "Error in Query: \r\r" + statement + "\n\r\r\n";
}

TEST_F(ProductLookups, PricesComputedFixedAndAborted) {
  // "pl" has no fixed-price column and no tax row: the tax text "" stops the computation.
  const std::string pl_lines =
      error_line(
          "SELECT fix_ar_pl FROM fix_arak WHERE fix_product_id='1' AND "
          "fix_product_type_id='0' ORDER BY fix_id DESC LIMIT 1;") +
      error_line(
          "SELECT tax_value FROM taxes WHERE tax_country='pl' ORDER BY tax_id DESC LIMIT 1;");
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
           // 1000 x 1.21 x 25 x 1 (no HU->CZ row) = 30250; - 500 + 100 = 29850.
           {"1", "cz", true, false, "29850", ""},
           // Fixed price ignored; EUR over HUF: 500 x 1.27 x 310 x 1.2 (DE->HU) = 236220 -> 236290.
           {"2", "hu", false, false, "236290", ""},
           // An empty fixed-price column is not "0", so it is a fixed price, cleaned to "0".
           {"2", "cz", true, false, "0", ""},
           // 100.5 x 1.2 x 1 x 1.15 = 138.69 -> 139 + 0.90; '5000' alone has no sk item.
           {"3", "sk", true, false, "139.9", ""},
           // USD at the unreadable rate 'abc', so 1: 1000 x 1.27 x 1 x 1.12 (unknown: SK) -> 1490.
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
           {"1", "pl", true, false, "0", pl_lines},
           {"8", "cz", false, true, "99990", product_row("8")},  // discount '1.000,-'
           {"9", "hu", true, false, "0", product_row("9")},      // extra profit 'sok'
       }) {
    CapturedStdout out;
    EXPECT_EQ(GENERATE_PRICE_WITH_TAX(db_.query, c.id, c.site, c.check_fix_ar, c.use_old_price),
              c.price)
        << c.id << " " << c.site;
    EXPECT_EQ(out.text(), c.console) << c.id << " " << c.site;
  }
}

TEST_F(ProductLookups, NamePartOfEachStoredValue) {
  CapturedStdout out;
  for (const Row& row : kRows) {
    EXPECT_EQ(TERMEKNEV_GENERATOR(db_.query, std::to_string(row.id), "hu"), row.name)
        << row.column << " = " << row.value;
  }
  EXPECT_EQ(out.text(), "");
}

TEST_F(ProductLookups, NameWrappersAroundTheComponents) {
  struct Case {
    std::string id, components, arukereso, talmo;
  };
  CapturedStdout out;
  for (const Case& c : std::vector<Case>{
           // An empty manufacturer adds nothing.
           {"20", "i3-2350M, 4GB, Win8", "Aspire One - i3-2350M, 4GB, Win8",
            "Aspire One - i3-2350M, 4GB, Win8"},
           // Accessories, trimmed, ";" read as ",", follow the components even when there are none.
           {"21", "", "Iconia - , táska, egér", "Iconia - , táska, egér"},
           // Blank accessories are none; a missing model name leaves the " - ".
           {"22", ", 2GB", " - , 2GB", "Asus  - , 2GB"},
           {"999", "", " - ", " - "},
       }) {
    EXPECT_EQ(TERMEKNEV_GENERATOR(db_.query, c.id, "hu"), c.components) << c.id;
    EXPECT_EQ(GENERATE_ARUKERESO_NAME(db_.query, c.id, "hu"), c.arukereso) << c.id;
    EXPECT_EQ(GENERATE_TALMO_TERMEKNEV(db_.query, c.id, "hu"), c.talmo) << c.id;
  }
  EXPECT_EQ(out.text(), "");
}

TEST_F(ProductLookups, KindOfAProduct) {
  CapturedStdout out;
  // LAPTOP and Tablet: the lower cat_id wins, named as the shop names its kinds.
  EXPECT_EQ(GETMAINCATEGORY(db_.query, "31"), "Laptop");
  EXPECT_EQ(GETSECONDMAINCATEGORY(db_.query, "31"), "Tablet");
  EXPECT_EQ(GETMAINCATEGORY(db_.query, "32"), "Minden egyben PC - AIO PC");
  EXPECT_EQ(GETMAINCATEGORY(db_.query, "33"), "");  // Ultrabook is no kind
  EXPECT_EQ(GETMAINCATEGORY(db_.query, "43"), "");  // filed under a category that does not exist
  EXPECT_EQ(out.text(), "");
}

}  // namespace
}  // namespace talmo::testing
