// Category lookups against the private database: kinds, second kinds, series and ids by name.
#include "product/categories.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

class Categories : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb::instance().reset_database();
    PrivateMariaDb::instance().run_sql(
        "INSERT INTO categories (cat_id, cat_category_name, cat_category_level, "
        "cat_category_parent_id) VALUES "
        "(1, 'LAPTOP', '0', '0'), (2, 'Tablet', '0', '0'), "
        "(3, 'Minden egyben PC - AIO PC', '0', '0'), (4, 'Ultrabook', '0', '0'), "
        "(10, 'Asus Laptop', '1', '1'), (11, 'Asus Tablet', '1', '2'), "
        "(20, '  VivoBook  ', '2', '10'), (21, 'Transformer', '2', '11'), "
        "(30, 'Asus Laptop', '2', '99'), (31, 'Lenovo Laptop', '1', '1'), "
        "(50, 'Akció', '1', '0'), (51, 'Akció', '1', '0');"
        "INSERT INTO product_categories (prod_cat_product_id, prod_cat_category_id) VALUES "
        "('1', '2'), ('1', '1'), "
        "('2', '3'), ('2', '2'), "
        "('3', '4'), "
        "('4', '3'), "
        "('5', '4'), ('5', '1'), "
        "('6', '1'), ('6', '10'), ('6', '20'), "
        "('8', '1'), ('8', '3'), ('8', '2'), "
        "('10', '1'), ('11', '1'), ('12', '1'), ('13', '999');"
        "INSERT INTO laptop_adatbazis (id, gyarto) VALUES "
        "(1, 'Asus'), (2, 'Asus'), (3, 'Asus'), (6, ' Asus '), (9, 'Lenovo'), (10, 'Lenovo'), "
        "(11, NULL);");
  }

  DbSession db_;
};

TEST_F(Categories, KindsOfAProduct) {
  struct Case {
    std::string idx, main, second;
  };
  CapturedStdout out;
  for (const Case& c : std::vector<Case>{
           {"1", "Laptop", "Tablet"},  // LAPTOP and Tablet: the lower cat_id is the main kind
           {"2", "Tablet", "Minden egyben PC - AIO PC"},
           {"3", "", ""},                           // only Ultrabook
           {"4", "Minden egyben PC - AIO PC", ""},  // one level-0 row
           {"5", "Laptop", ""},                     // the other row is no kind
           {"6", "Laptop", ""},                     // level-1 and level-2 rows do not count
           {"8", "Laptop", "Tablet"},               // of the two others the lowest cat_id wins
           {"13", "", ""},                          // filed under a category that does not exist
           {"99", "", ""},
       }) {
    EXPECT_EQ(GETMAINCATEGORY(db_.query, c.idx), c.main) << c.idx;
    EXPECT_EQ(GETSECONDMAINCATEGORY(db_.query, c.idx), c.second) << c.idx;
  }
  EXPECT_EQ(out.text(), "");
}

}  // namespace
}  // namespace talmo::testing
