// Lookups against the private database: the shared guard and its error lines.
#include <gtest/gtest.h>

#include "core/lookup.h"
#include "core/statements.h"
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
  query.set_statement(Statement(StatementKind::unlisted, {}, "SELECT x FROM y;"));
  EXPECT_EQ(query_error_line(query, QueryErrorLine::plain, "boom"),
            "Error in Query: \r\rSELECT x FROM y;\n\r\r");
  EXPECT_EQ(query_error_line(query, QueryErrorLine::with_message, "boom"),
            "Error in Query: \r\rSELECT x FROM y;\n\r\rSQL Return Message: \r\rboom");
  EXPECT_EQ(query_error_line(query, QueryErrorLine::with_error_message, "boom"),
            "Error in Query: SELECT x FROM y;\n | Error Message: boom");
  EXPECT_EQ(query_error_line(query, QueryErrorLine::id_list, "boom"), "SELECT x FROM y;\n|boom");
}

TEST_F(Lookups, LookupTextGivesTheFirstRowOrNothing) {
  CapturedStdout out;
  EXPECT_EQ(lookup_text(db_.query, statements::product_columns({"sorszam"}, "2"), "sorszam"),
            "AKC-77");
  EXPECT_EQ(lookup_text(db_.query, statements::product_columns({"sorszam"}, "99"), "sorszam"), "");
  EXPECT_EQ(lookup_text(db_.query, statements::product_columns({"sorszam"}, "10"), "sorszam"), "");
  // The cursor keeps the last statement it ran, with its kind and values.
  EXPECT_EQ(db_.query.statement().kind(), StatementKind::product_columns);
  EXPECT_EQ(db_.query.statement().parameters(), (StringList{"sorszam", "10"}));
  EXPECT_EQ(out.text(), "");
}

TEST_F(Lookups, FailedLookupPrintsTheDefaultLineAndGivesItsDefault) {
  CapturedStdout out;
  EXPECT_EQ(lookup_text(db_.query, statements::product_columns({"nothere"}, "1"), "nothere"), "");
  EXPECT_EQ(out.text(),
            "Error in Query: \r\rSELECT nothere FROM laptop_adatbazis WHERE id='1';\n\r\r\n");
}

}  // namespace
}  // namespace talmo::testing
