// The TALMO line builder's own fields against the private database.
#include <gtest/gtest.h>

#include "feeds/talmo.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

class TalmoFields : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb::instance().reset_database();
    PrivateMariaDb::instance().run_sql(
        "INSERT INTO laptop_adatbazis (id, published, sorszam, gyarto, tipusmegnevezes) VALUES "
        "(1, 1, '11000', '  Asus\\t', ' K55VD  '), (2, 1, '11001', NULL, 'X1');");
  }

  DbSession db_;
};

TEST_F(TalmoFields, ArticleLabelTrimsBothParts) {
  CapturedStdout out;
  EXPECT_EQ(GENERATE_TALMO_CIKKSZAM(db_.query, "1", "hu"), "Asus K55VD");
  EXPECT_EQ(GENERATE_TALMO_CIKKSZAM(db_.query, "2", "hu"), " X1");
  EXPECT_EQ(GENERATE_TALMO_CIKKSZAM(db_.query, "9", "hu"), "");
  EXPECT_EQ(out.text(), "");
  EXPECT_EQ(GENERATE_TALMO_CIKKSZAM(db_.query, "1'", "hu"), "");
  EXPECT_EQ(out.text(),
            "Error in Query: \r\rSELECT gyarto, tipusmegnevezes FROM laptop_adatbazis WHERE "
            "id='1'';\n\r\r\n");
}

TEST_F(TalmoFields, LineAppendsOneRowOfEightFieldsInColumnOrder) {
  ColumnTable TALMOP;
  std::vector<StringList> rows;
  TALMOP.row_added = [&](const StringList&, const StringList& row) { rows.push_back(row); };
  GENERATE_TALMO_HEADER(TALMOP);
  CapturedStdout out;  // no tax row: the price computation reports and gives "0"
  EXPECT_EQ(GENERATE_TALMO_LINE(db_.query, "9", "hu", TALMOP), "");
  ASSERT_EQ(TALMOP.row_count, 2);
  ASSERT_EQ(rows.size(), 1u);
  const StringList& row = rows[0];
  ASSERT_EQ(row.size(), 8u);
  EXPECT_EQ(row[0], "");
  EXPECT_EQ(row[1], " - ");
  EXPECT_EQ(row[2], "");
  EXPECT_EQ(row[3], "0");
  EXPECT_EQ(row[4], "https://www.kelvor.hu/images/stories/virtuemart/product/");
  EXPECT_EQ(row[5],
            "https://www.kelvor.hu//-elado/?utm_source=talmo&utm_medium=&utm_campaign=konverzio");
  EXPECT_EQ(row[6], "1 munkanap");
  EXPECT_EQ(row[7], "890");
}

}  // namespace
}  // namespace talmo::testing
