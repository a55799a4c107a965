// Lookups against the private database: the shared guard, its error lines and the filters of
// the export pipeline.
#include <gtest/gtest.h>

#include "app/export_pipeline.h"
#include "app/lookup.h"
#include "app/run_state.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

class Lookups : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb::instance().reset_database();
    PrivateMariaDb::instance().run_sql(
        "INSERT INTO laptop_adatbazis (id, published, sorszam) VALUES "
        "(1, 1, '11000'), (2, 0, 'AKC-77'), (3, NULL, 'xAkC12'), (4, 1, 'ak c'), (10, 1, NULL);");
  }

  DbSession db_;
};

TEST_F(Lookups, ErrorLinesCarryTheStatementWithItsLineEnd) {
  Query& query = db_.query;
  query.set_sql("SELECT x FROM y;");
  EXPECT_EQ(query_error_line(query, QueryErrorLine::plain, "boom"),
            "Error in Query: \r\rSELECT x FROM y;\n\r\r");
  EXPECT_EQ(query_error_line(query, QueryErrorLine::with_message, "boom"),
            "Error in Query: \r\rSELECT x FROM y;\n\r\rSQL Return Message: \r\rboom");
  EXPECT_EQ(query_error_line(query, QueryErrorLine::with_error_message, "boom"),
            "Error in Query: SELECT x FROM y;\n | Error Message: boom");
}

TEST_F(Lookups, LookupTextGivesTheFirstRowOrNothing) {
  CapturedStdout out;
  EXPECT_EQ(lookup_text(db_.query, "SELECT sorszam FROM laptop_adatbazis WHERE id='2';", "sorszam"),
            "AKC-77");
  EXPECT_EQ(
      lookup_text(db_.query, "SELECT sorszam FROM laptop_adatbazis WHERE id='99';", "sorszam"), "");
  EXPECT_EQ(
      lookup_text(db_.query, "SELECT sorszam FROM laptop_adatbazis WHERE id='10';", "sorszam"), "");
  EXPECT_EQ(out.text(), "");
}

TEST_F(Lookups, FailedLookupPrintsTheDefaultLineAndGivesItsDefault) {
  CapturedStdout out;
  EXPECT_EQ(lookup_text(db_.query, "SELECT nothere FROM laptop_adatbazis WHERE id='1';", "nothere"),
            "");
  EXPECT_FALSE(PRODUCTPUBLISHED(db_.query, "1'"));
  EXPECT_EQ(out.text(),
            "Error in Query: \r\rSELECT nothere FROM laptop_adatbazis WHERE id='1';\n\r\r\n"
            "Error in Query: \r\rSELECT published FROM laptop_adatbazis WHERE id='1'';\n\r\r\n");
}

TEST_F(Lookups, PublishedFlagAndClearanceItems) {
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

TEST_F(Lookups, FailedIdListIsReportedAndTheExportGoesOnWithNothing) {
  PrivateMariaDb::instance().run_sql("RENAME TABLE laptop_adatbazis TO laptop_regi;");
  TempDir dir;
  PATH = dir.path() + "/";
  QUERY = std::make_unique<Query>(db_.connection);
  CapturedStdout out;
  DO_EXPORT_TALMO();
  DO_EXPORT_VATERA();
  QUERY.reset();
  PrivateMariaDb::instance().run_sql("RENAME TABLE laptop_regi TO laptop_adatbazis;");
  EXPECT_EQ(out.text(),
            "SELECT id FROM laptop_adatbazis ORDER BY id DESC;\n"
            "|Table 'uj_db.laptop_adatbazis' doesn't exist\n"
            "Starting Generate_TALMO...\n"
            "Querying list for published items...\n"
            "Finished Generate_TALMO...\n"
            "SELECT id FROM laptop_adatbazis ORDER BY id DESC;\n"
            "|Table 'uj_db.laptop_adatbazis' doesn't exist\n"
            "Starting Generate_VATERA...\n"
            "Finished Generate_VATERA...\n");
  EXPECT_TRUE(FULL_LIST.empty());
}

}  // namespace
}  // namespace talmo::testing
