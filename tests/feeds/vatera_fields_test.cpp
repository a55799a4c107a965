// The Vatera line builder and its own fields against the private database.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/text_utils.h"
#include "description/long_description.h"
#include "feeds/vatera.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

class VateraFields : public ::testing::Test {
 protected:
  // Product 1 is a complete Asus laptop of the series N56VZ; 2 and 3 carry fixed prices.
  static void SetUpTestSuite() {
    PrivateMariaDb& db = PrivateMariaDb::instance();
    db.reset_database();
    db.run_sql(
        "INSERT INTO categories (cat_id, cat_category_name, cat_category_level, "
        "cat_category_parent_id) VALUES (1, 'Laptop', '0', '0'), (10, 'Asus Laptop', '1', '1'), "
        "(20, 'N56VZ', '2', '10');");
    db.run_sql(
        "INSERT INTO laptop_adatbazis (id, published, sorszam, gyarto, nev, tipus, processzor, "
        "garancia, netto_darabar, uj_netto_darabar) VALUES "
        "(1, 1, '11200', 'Asus', 'N56VZ-S4044H', 'n56vz', 'x|i5-3210M', ' 24 hónap ', "
        "'100000', '90000'), "
        "(2, 1, '11300', 'Asus', 'K55', 'k55', NULL, NULL, '100000', '90000'), "
        "(3, 1, '11301', 'Asus', 'K56', 'k56', NULL, NULL, '100000', '90000');");
    db.run_sql(
        "INSERT INTO product_categories (prod_cat_type_id, prod_cat_product_id, "
        "prod_cat_category_id) VALUES ('0', '1', '1');");
    db.run_sql("INSERT INTO taxes (tax_country, tax_value) VALUES ('hu', '27');");
    db.run_sql(
        "INSERT INTO fix_arak (fix_product_id, fix_product_type_id, fix_ar_hu) VALUES "
        "('2', '0', '99990'), ('3', '0', '150 000,5');");
  }

  DbSession db_;
};

TEST_F(VateraFields, WholeLineOfOneProduct) {
  CapturedStdout out;
  const std::string line = GENERATE_VATERA_LINE(db_.query, "1", "hu");
  const std::string pictures = GETSITEURL("hu") + "/images/stories/virtuemart/product/ASUS-N56VZ-0";
  const std::string host = GETSITENAME("hu");
  // 90000 x 1.27: 114390; +4 %: 118990; +2 %: 121369.8, so 121390. The description comes last and
  // may itself hold ";", so the 30 columns before it are compared whole and the description on its
  // own.
  const std::string expected_start =
      "7937228;Asus N56VZ-S4044H - i5-3210M LAPTOP, NOTEBOOK;;5;121390;121390;121390;0;0;1;"
      "9611;1;506;11399747;1;0;664;8;;" +
      pictures + "1-" + host + ".jpg;" + pictures + "2-" + host + ".jpg;" + pictures + "3-" + host +
      ".jpg;" + pictures + "4-" + host + ".jpg;0;11200/Asus;;;;;;";
  ASSERT_GE(line.size(), expected_start.size());
  EXPECT_EQ(line.substr(0, expected_start.size()), expected_start);
  EXPECT_EQ(line.substr(expected_start.size()),
            GENERATE_ARUKERESO_DESCRIPTION(db_.query, "1", "hu"));
}

TEST_F(VateraFields, PricesAreTheGrandoDiscountPriceRaisedAgain) {
  struct Case {
    std::string id, price;
  };
  CapturedStdout out;
  for (const Case& c : std::vector<Case>{
           {"2", "106090"},    // fixed 99990; +4 %: 103990; +2 %: 106069.8
           {"3", "150000.5"},  // fixed, not a whole number: passes both steps
       }) {
    EXPECT_EQ(GENERATE_VATERA_05_KIKIALTASI_AR(db_.query, c.id, "hu"), c.price) << c.id;
    EXPECT_EQ(GENERATE_VATERA_06_MINIMALIS_AR(db_.query, c.id, "hu"), c.price) << c.id;
    EXPECT_EQ(GENERATE_VATERA_07_VILLAMAR(db_.query, c.id, "hu"), c.price) << c.id;
  }
}

}  // namespace
}  // namespace talmo::testing
