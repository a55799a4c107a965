// The tool's cursor against the private server: a fixture written by the command-line client
// reads back unchanged through the tool's connection, line ends reach the server as "\n", and
// the error lines of a failed lookup carry the statement as kept.
#include <gtest/gtest.h>

#include "core/database.h"
#include "core/lookup.h"
#include "core/statements.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

TEST(Database, TextsNullsAndFlagsReadBackUnchanged) {
  DbSession db;
  db.server.reset_database();
  db.server.run_sql(
      "CREATE TABLE harness_rows (id INT PRIMARY KEY, label VARCHAR(64) NULL, flag TINYINT NULL);"
      "INSERT INTO harness_rows VALUES (9, 'kilenc', 1), (10, NULL, 0), "
      "(100, 'Szállítási idõ | ő ű', NULL), (2, '', 2);");
  db.query.set_statement(
      Statement(StatementKind::unlisted, {}, "SELECT label, flag FROM harness_rows ORDER BY id;"));
  db.query.open();
  std::string read;
  for (db.query.first(); !db.query.eof(); db.query.next())
    read += db.query.field_text("label") + (db.query.field_bool("flag") ? "|yes\n" : "|no\n");
  EXPECT_EQ(read, "|yes\nkilenc|yes\n|no\nSzállítási idõ | ő ű|no\n");
}

TEST(Database, LineEndsInAStatementReachTheServerAsLineFeeds) {
  const struct {
    std::string text, value, shown;
  } cases[] = {
      {"SELECT 'a\rb' AS v;", "a\nb", "SELECT 'a\nb' AS v;\n"},
      {"SELECT 'a\r\nb' AS v;", "a\nb", "SELECT 'a\nb' AS v;\n"},
      {"SELECT 'a\n\rb' AS v;", "a\n\nb", "SELECT 'a\n\nb' AS v;\n"},
      // Empty lines in front are not sent; a line end at the end starts no new line.
      {"\r\nSELECT 'x\r' AS v;\n", "x\n", "\nSELECT 'x\n' AS v;\n"},
  };
  // Sent as they come, and from inside a snapshot, which sends a statement once.
  DbSession db;
  Transaction transaction(db.connection);
  for (const bool in_snapshot : {false, true}) {
    if (in_snapshot)
      transaction.start();
    for (const auto& c : cases) {
      db.query.set_statement(Statement(StatementKind::unlisted, {}, c.text));
      EXPECT_EQ(db.query.sql_text(), c.shown) << c.text;
      db.query.open();
      EXPECT_EQ(db.query.field_text("v"), c.value) << c.text;
    }
  }
}

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

}  // namespace
}  // namespace talmo::testing
