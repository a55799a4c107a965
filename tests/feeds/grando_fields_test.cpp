// The Grando line builder and its own fields against the private database.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/text_utils.h"
#include "description/long_description.h"
#include "feeds/grando.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

// Laptop, Tablet and Ultrabook kinds; the series N56VZ under "Asus Laptop". Product 1 has a
// type-1 Ultrabook row, which does not count; 2 is an ultrabook; 3 is a tablet with a fixed
// price that is not a whole number; 4 is a clearance item; 5 has no category and unstripped
// names; 6 is filed as laptop and tablet. Net prices: old 100000 / 80000, new 90000.
void insert_shop(const PrivateMariaDb& db) {
  db.run_sql(
      "INSERT INTO categories (cat_id, cat_category_name, cat_category_level, "
      "cat_category_parent_id) VALUES (1, 'Laptop', '0', '0'), (2, 'Tablet', '0', '0'), "
      "(3, 'Ultrabook', '0', '0'), (10, 'Asus Laptop', '1', '1'), (20, 'N56VZ', '2', '10');");
  db.run_sql(
      "INSERT INTO laptop_adatbazis (id, published, sorszam, gyarto, nev, tipus, processzor, "
      "garancia, netto_darabar, uj_netto_darabar) VALUES "
      "(1, 1, '11200', 'Asus', 'N56VZ-S4044H', 'n56vz', 'x|i5-3210M', ' 24 hónap ', '100000', "
      "'90000'), "
      "(2, 1, '11201', 'Asus', 'UX31A', 'ux31a', 'x|i7-3517U', '12', '80000', '90000'), "
      "(3, 1, '11202', 'Apple', 'iPad', 'ipad', NULL, NULL, '100000', '90000'), "
      "(4, 1, 'xAkC12', 'Asus', 'K55VD', 'k55vd', NULL, NULL, '100000', '90000'), "
      "(5, 1, '11203', ' Acer', 'Aspire One ', 'ao', NULL, NULL, '100000', '90000'), "
      "(6, 1, '11204', 'Asus ', 'K56', 'k56', NULL, NULL, '100000', '90000');");
  db.run_sql(
      "INSERT INTO product_categories (prod_cat_type_id, prod_cat_product_id, "
      "prod_cat_category_id) VALUES ('0', '1', '1'), ('1', '1', '3'), ('0', '2', '1'), "
      "('0', '2', '3'), ('0', '3', '2'), ('0', '6', '1'), ('0', '6', '2');");
  db.run_sql("INSERT INTO taxes (tax_country, tax_value) VALUES ('hu', '27');");
  db.run_sql(
      "INSERT INTO fix_arak (fix_product_id, fix_product_type_id, fix_ar_hu) VALUES "
      "('3', '0', '150 000,5');");
}

class GrandoFields : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb::instance().reset_database();
    insert_shop(PrivateMariaDb::instance());
  }

  DbSession db_;
};

TEST_F(GrandoFields, NameEndsWithTheKindSuffix) {
  struct Case {
    std::string id, name;
  };
  CapturedStdout out;
  for (const Case& c : std::vector<Case>{
           {"2", "Asus UX31A - i7-3517U LAPTOP, ULTRABOOK"},
           {"3", "Apple iPad -  Tablet"},
           {"5", " Acer Aspire One  -  "},
           {"99", "  -  "},
       }) {
    EXPECT_EQ(GENERATE_GRANDO_NAME(db_.query, c.id, "hu"), c.name) << c.id;
  }
  EXPECT_EQ(out.text(), "");
}

TEST_F(GrandoFields, ProductIdIsTheSerialForClearanceItemsElseTheSku) {
  EXPECT_EQ(GENERATE_GRANDO_PRODUCT_ID(db_.query, "4", "hu"), "xAkC12");
  EXPECT_EQ(GENERATE_GRANDO_PRODUCT_ID(db_.query, "99", "hu"), " LAPTOP, NOTEBOOK");
}

TEST_F(GrandoFields, CategoryNumberFromManufacturerSeriesAndMainKind) {
  struct Case {
    std::string id, number;
  };
  CapturedStdout out;
  for (const Case& c : std::vector<Case>{
           {"6", "9611"},  // series N56VZ of "Asus Laptop"; also a tablet, but the main kind counts
           {"3", "9421"},  // no "Apple Tablet" series: the tablet default
           {"5", ""},      // no kind: Acer has no default of its own
           {"99", ""},
       }) {
    EXPECT_EQ(GENERATE_GRANDO_CATEGORY(db_.query, c.id, "hu"), c.number) << c.id;
  }
  EXPECT_EQ(out.text(), "");
  GENERATE_GRANDO_CATEGORY(db_.query, "1'", "hu");
  EXPECT_EQ(out.text(),
            "Error in Query: \r\rSELECT gyarto FROM laptop_adatbazis WHERE id='1'';\n\r\r\n");
}

TEST_F(GrandoFields, LineAppendsTheTenFieldsInColumnOrder) {
  ColumnTable GRANDO;
  std::vector<StringList> rows;
  GRANDO.row_added = [&](const StringList&, const StringList& row) { rows.push_back(row); };
  GENERATE_GRANDO_HEADER(GRANDO);
  CapturedStdout out;
  EXPECT_EQ(GENERATE_GRANDO_LINE(db_.query, "1", "hu", GRANDO), "");
  ASSERT_EQ(GRANDO.row_count, 2);
  ASSERT_EQ(rows.size(), 1u);
  const std::string site = GETSITEURL("hu");
  const StringList expected = {
      "Asus N56VZ-S4044H - i5-3210M LAPTOP, NOTEBOOK",
      "11200/Asus LAPTOP, NOTEBOOK",
      "132190",
      GENERATE_ARUKERESO_DESCRIPTION(db_.query, "1", "hu"),
      site +
          "/laptop/asus-n56vz-s4044h-11200-elado/"
          "?utm_source=grando&utm_medium=11200-asus&utm_campaign=konverzio",
      "118990",
      "24 hónap",
      "Asus",
      site + "/images/stories/virtuemart/product/ASUS-N56VZ-01-" + GETSITENAME("hu") + ".jpg",
      "9611",
  };
  EXPECT_EQ(rows[0], expected);
}

TEST_F(GrandoFields, LineShowsTheHigherWholePriceAsListPrice) {
  struct Case {
    std::string id, price, discount_price;
  };
  ColumnTable GRANDO;
  std::vector<StringList> rows;
  GRANDO.row_added = [&](const StringList&, const StringList& row) { rows.push_back(row); };
  GENERATE_GRANDO_HEADER(GRANDO);
  CapturedStdout out;
  // List prices from the old net price: 100000 x 1.27 = 127000, ending 127090, raised by 4 % to
  // 132173.6, so 132190 (product 1 in the line above); 80000 gives 101600, 101690, 105757.6, so
  // 105790. Discount prices from the new net price (90000: 114300, 114390, 118965.6, so 118990)
  // or the fixed price.
  const std::vector<Case> cases = {
      {"2", "118990", "118990"},    // discount above: the list price shows it
      {"3", "132190", "150000.5"},  // not a whole number: no comparison
  };
  for (const Case& c : cases)
    GENERATE_GRANDO_LINE(db_.query, c.id, "hu", GRANDO);
  ASSERT_EQ(rows.size(), cases.size());
  for (std::size_t i = 0; i < cases.size(); ++i) {
    EXPECT_EQ(rows[i][2], cases[i].price) << cases[i].id;
    EXPECT_EQ(rows[i][5], cases[i].discount_price) << cases[i].id;
  }
}

// A shop without an Ultrabook category: the product's categories are not asked about it, so a
// stray row pointing at category "-1" cannot make a laptop an ultrabook.
class GrandoWithoutUltrabook : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb& db = PrivateMariaDb::instance();
    db.reset_database();
    db.run_sql(
        "INSERT INTO categories (cat_id, cat_category_name, cat_category_level) VALUES "
        "(1, 'Laptop', '0');");
    db.run_sql("INSERT INTO laptop_adatbazis (id, gyarto, nev) VALUES (1, 'Asus', 'K55VD');");
    db.run_sql(
        "INSERT INTO product_categories (prod_cat_type_id, prod_cat_product_id, "
        "prod_cat_category_id) VALUES ('0', '1', '1'), ('0', '1', '-1');");
  }

  DbSession db_;
};

TEST_F(GrandoWithoutUltrabook, NameKeepsTheNotebookSuffix) {
  CapturedStdout out;
  EXPECT_EQ(GENERATE_GRANDO_NAME(db_.query, "1", "hu"), "Asus K55VD -  LAPTOP, NOTEBOOK");
  EXPECT_EQ(out.text(), "");
}

}  // namespace
}  // namespace talmo::testing
