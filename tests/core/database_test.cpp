// The tool's cursor against the private server, as every database test uses it: a fixture
// written by the command-line client must read back unchanged through the tool's connection.
#include <gtest/gtest.h>

#include <vector>

#include "core/database.h"
#include "core/errors.h"
#include "core/statements.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

class Database : public ::testing::Test {
 protected:
  void SetUp() override {
    PrivateMariaDb& server = PrivateMariaDb::instance();
    server.reset_database();
    server.run_sql(
        "CREATE TABLE harness_rows (id INT NOT NULL AUTO_INCREMENT PRIMARY KEY, "
        "label VARCHAR(64) NULL, flag TINYINT NULL);\n"
        "INSERT INTO harness_rows (id, label, flag) VALUES "
        "(9, 'kilenc', 1), (10, NULL, 0), (100, 'Szállítási idõ | ő ű', NULL), (2, '', 2);");
  }

  // The named column of every row, in the statement's order.
  StringList column(const std::string& sql, const std::string& name) {
    db_.query.set_statement(Statement(StatementKind::unlisted, {}, sql));
    db_.query.open();
    StringList values;
    for (db_.query.first(); !db_.query.eof(); db_.query.next())
      values.push_back(db_.query.field_text(name));
    return values;
  }

  // Opened before SetUp resets the database, as in every fixture that holds a session.
  DbSession db_;
};

TEST_F(Database, NewestIdFirstIsNumericOrder) {
  EXPECT_EQ(column("SELECT id FROM harness_rows ORDER BY id DESC;", "id"),
            (StringList{"100", "10", "9", "2"}));
  EXPECT_EQ(column("SELECT id FROM harness_rows ORDER BY id DESC LIMIT 1;", "id"),
            (StringList{"100"}));
}

TEST_F(Database, TextsNullsAndFlagsReadBackUnchanged) {
  struct Case {
    std::string id, label;
    bool flag;
  };
  for (const Case& c : std::vector<Case>{
           {"9", "kilenc", true},
           {"10", "", false},
           {"100", "Szállítási idõ | ő ű", false},
           {"2", "", true},
       }) {
    db_.query.set_statement(
        Statement(StatementKind::unlisted, {},
                  "SELECT label, flag FROM harness_rows WHERE id='" + c.id + "';"));
    db_.query.open();
    ASSERT_EQ(db_.query.record_count(), 1) << c.id;
    EXPECT_EQ(db_.query.field_text("label"), c.label) << c.id;
    EXPECT_EQ(db_.query.field_bool("flag"), c.flag) << c.id;
  }
}

TEST_F(Database, LineEndsInAStatementReachTheServerAsLineFeeds) {
  const struct {
    std::string text, value, shown;
  } cases[] = {
      {"SELECT 'ab' AS v;", "ab", "SELECT 'ab' AS v;\n"},
      {"SELECT 'a\rb' AS v;", "a\nb", "SELECT 'a\nb' AS v;\n"},
      {"SELECT 'a\r\nb' AS v;", "a\nb", "SELECT 'a\nb' AS v;\n"},
      {"SELECT 'a\n\rb' AS v;", "a\n\nb", "SELECT 'a\n\nb' AS v;\n"},
      // Empty lines in front are not sent; a line end at the end starts no new line.
      {"\r\nSELECT 'x\r' AS v;\n", "x\n", "\nSELECT 'x\n' AS v;\n"},
  };
  // Sent as they come, and from inside a snapshot, which sends a statement once.
  Transaction transaction(db_.connection);
  for (const bool in_snapshot : {false, true}) {
    if (in_snapshot)
      transaction.start();
    for (const auto& c : cases) {
      db_.query.set_statement(Statement(StatementKind::unlisted, {}, c.text));
      EXPECT_EQ(db_.query.sql_text(), c.shown) << c.text;
      db_.query.open();
      EXPECT_EQ(db_.query.field_text("v"), c.value) << c.text;
    }
  }
}

TEST_F(Database, RefusedLoginIsNamedFromLocalhost) {
  Connection connection;
  try {
    connection.open("127.0.0.1", "exprtr", "wrong", "uj_db");
    ADD_FAILURE() << "login accepted";
  } catch (const DatabaseError& error) {
    EXPECT_STREQ(error.what(), "Access denied for user 'exprtr'@'localhost' (using password: YES)");
  }
  EXPECT_FALSE(connection.connected());
}

}  // namespace
}  // namespace talmo::testing
