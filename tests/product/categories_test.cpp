// A product's kinds (level-0 categories) over tests/product/fixtures/products.sql.
#include "product/categories.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

TEST(Categories, KindsOfAProduct) {
  PrivateMariaDb::instance().reset_database();
  PrivateMariaDb::instance().run_sql_file(source_path("tests/product/fixtures/products.sql"));
  DbSession db;
  struct Case {
    std::string idx, main, second;
  };
  CapturedStdout out;
  for (const Case& c : std::vector<Case>{
           {"31", "Laptop", "Tablet"},  // LAPTOP and Tablet: the lower cat_id is the main kind
           {"32", "Tablet", "Minden egyben PC - AIO PC"},
           {"33", "", ""},              // only Ultrabook
           {"36", "Laptop", ""},        // level-1 and level-2 rows do not count
           {"38", "Laptop", "Tablet"},  // of the two others the lowest cat_id wins
           {"43", "", ""},              // filed under a category that does not exist
       }) {
    EXPECT_EQ(GETMAINCATEGORY(db.query, c.idx), c.main) << c.idx;
    EXPECT_EQ(GETSECONDMAINCATEGORY(db.query, c.idx), c.second) << c.idx;
  }
  EXPECT_EQ(out.text(), "");
}

}  // namespace
}  // namespace talmo::testing
