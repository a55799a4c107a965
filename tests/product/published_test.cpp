// The published filter and the clearance test against the private database.
#include <gtest/gtest.h>

#include "product/published.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

class PublishedFlags : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb::instance().reset_database();
    PrivateMariaDb::instance().run_sql(
        "INSERT INTO laptop_adatbazis (id, published, sorszam) VALUES "
        "(1, 1, '11000'), (2, 0, 'AKC-77'), (3, NULL, 'xAkC12'), (4, 1, 'ak c'), (10, 1, NULL);");
  }

  DbSession db_;
};

TEST_F(PublishedFlags, PublishedFlagAndClearanceItems) {
  struct Case {
    std::string id;
    bool published, only_for_grando;
  };
  for (const Case& c : std::vector<Case>{{"1", true, false},
                                         {"2", false, true},
                                         {"3", false, true},  // NULL flag reads as false
                                         {"4", true, false},
                                         {"10", true, false},  // NULL sorszam
                                         {"99", false, false}}) {
    EXPECT_EQ(PRODUCTPUBLISHED(db_.query, c.id), c.published) << c.id;
    EXPECT_EQ(ISONLYFORGRANDO(db_.query, c.id), c.only_for_grando) << c.id;
  }
}

}  // namespace
}  // namespace talmo::testing
