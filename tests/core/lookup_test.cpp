// Lookups against the private database: the shared guard and its error lines.
#include <gtest/gtest.h>

#include "core/lookup.h"
#include "core/statements.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

TEST(Lookups, ErrorLinesCarryTheStatementWithItsLineEnds) {
  Connection connection;  // never opened: setting a statement does not touch the database
  Query query(connection);
  // CRLF, a lone CR and a lone LF inside a value each end a line of the kept text.
  query.set_statement(Statement(StatementKind::unlisted, {}, "SELECT 'a\r\nb\rc\n';"));
  const std::string kept = "SELECT 'a\nb\nc\n';\n";
  EXPECT_EQ(query_error_line(query, QueryErrorLine::plain, "boom"),
            "Error in Query: \r\r" + kept + "\r\r");
  EXPECT_EQ(query_error_line(query, QueryErrorLine::with_message, "boom"),
            "Error in Query: \r\r" + kept + "\r\rSQL Return Message: \r\rboom");
  EXPECT_EQ(query_error_line(query, QueryErrorLine::with_error_message, "boom"),
            "Error in Query: " + kept + " | Error Message: boom");
  EXPECT_EQ(query_error_line(query, QueryErrorLine::id_list, "boom"), kept + "|boom");
}

TEST(Lookups, LookupTextGivesTheFirstRowOrNothingOrPrintsTheError) {
  DbSession db;
  db.server.reset_database();
  db.server.run_sql(
      "INSERT INTO laptop_adatbazis (id, sorszam) VALUES (1, '11000'), (2, 'AKC-77'), (10, NULL);");
  CapturedStdout out;
  const auto sorszam = [&](const char* IDX) {
    return lookup_text(db.query, statements::product_columns({"sorszam"}, IDX), "sorszam");
  };
  EXPECT_EQ(sorszam("2"), "AKC-77");
  EXPECT_EQ(sorszam("99"), "");
  EXPECT_EQ(sorszam("10"), "");
  EXPECT_EQ(out.text(), "");
  EXPECT_EQ(lookup_text(db.query, statements::product_columns({"nothere"}, "1"), "nothere"), "");
  EXPECT_EQ(out.text(),
            "Error in Query: \r\rSELECT nothere FROM laptop_adatbazis WHERE id='1';\n\r\r\n");
}

}  // namespace
}  // namespace talmo::testing
