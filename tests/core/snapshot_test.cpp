// The run's snapshot against the real server: every answer it gives from memory is the one the
// server gives to the same statement (columns, rows, row order), keys compared as the schema
// compares them, and what it cannot be sure of is left to the server.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/database.h"
#include "core/errors.h"
#include "core/snapshot.h"
#include "core/statements.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

// Keys with trailing blanks and in other letter case, rows stored out of id order, doubled
// rows, NULLs, ids with leading zeros, an accented site code and a level stored as "0 ".
const char* const kFixture = R"SQL(
INSERT INTO laptop_adatbazis (id, published, sorszam, gyarto, nev, netto_darabar,
  uj_netto_darabar, kedvezmenyek, tobbletnyeresegek, wifi, `3g`) VALUES
  (5, 1, '11005', 'Asus', NULL, '100', '90', '1|2|3', '', '1||1', '0||'),
  (12, 0, 'AKC12', 'HP ', 'Pavilion', NULL, 'kalkul', NULL, '0|0|0', '', NULL),
  (120, 1, '11120', 'D''Arcy', 'Tab', '1 000', '950', '', '', '0||', '1|HSPA|1');
INSERT INTO product_valuta (prod_val_id, prod_val_product_type_id, prod_val_product_id,
  prod_val_valuta) VALUES
  (2, '0', '5 ', 'EUR'), (1, '0', '5', 'HUF'), (3, '0 ', '12', 'CZK'), (4, '1', '12', 'USD'),
  (5, '0', '012', 'HUF');
INSERT INTO fix_arak (fix_id, fix_product_id, fix_product_type_id, fix_ar_hu, fix_ar_sk,
  fix_ar_cz) VALUES
  (9, '5', '0', '99 990', '0', NULL), (3, '5', '0', '111', '1', '2'), (4, '12  ', '0', NULL, '5', '6'),
  (5, '120', '0 ', 'abc', '0', '0'), (6, '120', '1', '7', '7', '7');
INSERT INTO extra_jellemzo (ex_id, ex_product_type_id, ex_product_id, ex_site, ex_text) VALUES
  (30, '0', '5', 'hu', 'C'), (10, '0', '5', 'HU ', 'A'), (20, '0', '5 ', 'Hu', 'B'),
  (25, '0', '5', 'sk', 'X'), (40, '1', '5', 'hu', 'D'), (5, '0', '12', 'hu', NULL),
  (6, '0', '12 ', 'hu', 'F'), (7, '0', '120', 'hú', 'Ékezetes'), (8, '0', '120', 'hu', 'G');
INSERT INTO categories (cat_id, cat_category_name, cat_category_level, cat_category_parent_id)
  VALUES (1, 'Laptop', '0', '0'), (2, 'TABLET', '0', '0'), (3, 'Asus Laptop', '1', '1'),
  (4, 'Zenbook', '2', '3'), (7, 'Ultrabook', '0 ', '0');
INSERT INTO product_categories (prod_cat_id, prod_cat_type_id, prod_cat_product_id,
  prod_cat_category_id) VALUES
  (1, '0', '5', '1'), (2, '0', '5 ', '002'), (3, '0', '5', '3'), (4, '0', '5', '7'),
  (5, '0', '12', '1'), (6, '0', '12', '1'), (7, '0 ', '120', '7'), (8, '1', '120', '7'),
  (9, '0', '120', '07'), (10, '0', '120', NULL);
)SQL";

class SnapshotAnswers : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb::instance().reset_database();
    PrivateMariaDb::instance().run_sql(kFixture);
  }

  void SetUp() override { transaction_.start(); }

  Snapshot& snapshot() { return *in_snapshot_.connection.snapshot(); }
  std::uint64_t sent() const { return in_snapshot_.connection.statements_sent(); }

  // The answer from the snapshot, or the server's message when it refuses the statement.
  std::string answer_text(const Statement& statement) {
    try {
      return describe(*snapshot().answer(statement, statement.text()));
    } catch (const DatabaseError& error) {
      return std::string("refused: ") + error.what();
    }
  }
  // The same statement sent to the server outside any snapshot.
  std::string server_text(const Statement& statement) {
    try {
      return describe(plain_.connection.select(statement.text()));
    } catch (const DatabaseError& error) {
      return std::string("refused: ") + error.what();
    }
  }
  // The rows' values, one row per line, NULL shown as such.
  static std::string rows(const std::shared_ptr<const ResultSet>& result) {
    std::string text;
    for (const ResultSet::Row& row : result->rows) {
      for (const std::optional<std::string>& cell : row)
        text += (cell ? *cell : "NULL") + "|";
      text += "\n";
    }
    return text;
  }
  static std::vector<std::string> sorted_lines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end = text.find('\n'); end != std::string::npos;
         start = end + 1, end = text.find('\n', start))
      lines.push_back(text.substr(start, end - start));
    std::sort(lines.begin(), lines.end());
    return lines;
  }
  static std::string describe(const ResultSet& result) {
    std::string text;
    for (const std::string& name : result.column_names)
      text += name + "|";
    return text + "\n" + rows(std::make_shared<const ResultSet>(result));
  }

  DbSession in_snapshot_;
  DbSession plain_;
  Transaction transaction_{in_snapshot_.connection};
};

// Every per-product statement of the catalogue for these ids, and some of the others.
std::vector<Statement> statements_for(const StringList& ids) {
  std::vector<Statement> list;
  for (const std::string& IDX : ids) {
    // Products 12 and 120 tie in this statement's order; see LeaveTheOrderOfTiesToTheServer.
    if (IDX != "12" && IDX != "120")
      list.push_back(statements::level_zero_categories(IDX));
    list.push_back(statements::product_columns({"gyarto", "nev", "WIFI", "3g"}, IDX));
    list.push_back(statements::product_columns({"published"}, IDX));
    list.push_back(statements::product_columns({"nosuchcolumn"}, IDX));
    list.push_back(statements::price_amounts(IDX));
    list.push_back(statements::product_in_category(IDX, "7"));
    list.push_back(statements::product_in_category(IDX, "07"));
    list.push_back(statements::product_currency(IDX));
    for (const char* site : {"hu", "sk", "cz", "xx", "h'u"}) {
      list.push_back(statements::fixed_price(site, IDX));
      list.push_back(statements::extra_texts(IDX, site));
    }
  }
  list.push_back(statements::category_id("Ultrabook", "0"));
  list.push_back(statements::translation("Garancia", "HU"));
  return list;
}

TEST_F(SnapshotAnswers, AreTheServersAnswers) {
  // Plain ids and the forms the server compares otherwise: leading zeros, blanks, a quote.
  for (const Statement& statement :
       statements_for({"5", "12", "120", "99", "0", "05", "5 ", " 5", "5'", "1e1"})) {
    EXPECT_EQ(answer_text(statement), server_text(statement)) << statement.text();
  }
}

TEST_F(SnapshotAnswers, LeaveTheOrderOfTiesToTheServer) {
  // Products 12 and 120 are filed more than once under one category. The statement orders by
  // cat_id only, and the server orders such ties as its plan goes, not always alike.
  const struct {
    const char* IDX;
    std::uint64_t statements;
  } cases[] = {{"12", 3}, {"120", 1}};  // the two tables read first, then the statement itself
  for (const auto& [IDX, expected_statements] : cases) {
    const Statement statement = statements::level_zero_categories(IDX);
    const std::uint64_t before = sent();
    const std::string answer = answer_text(statement);
    EXPECT_EQ(sent() - before, expected_statements) << IDX;
    EXPECT_EQ(sorted_lines(answer), sorted_lines(server_text(statement))) << IDX;
  }
}

TEST_F(SnapshotAnswers, FollowTheSchemasKeysAndOrders) {
  const struct {
    Statement statement;
    std::string rows;
  } cases[] = {
      // Trailing blanks and letter case do not matter; rows by ascending ex_id, as inserted or not.
      {statements::extra_texts("5", "hu"), "A|\nB|\nC|\n"},
      {statements::extra_texts("12", "HU"), "NULL|\nF|\n"},
      // The accented site code is the plain one for the database.
      {statements::extra_texts("120", "hu"), "Ékezetes|\nG|\n"},
      // Newest by id, wherever the row stands in the table.
      {statements::fixed_price("hu", "5"), "99 990|\n"},
      {statements::fixed_price("cz", "12"), "6|\n"},
      {statements::product_currency("5"), "EUR|\n"},
      {statements::product_currency("12"), "CZK|\n"},
      // "002" joins category 2 as a number; the level "0 " is level 0.
      {statements::level_zero_categories("5"),
       "4|0|5|7|7|Ultrabook|0 |0|\n2|0|5 |002|2|TABLET|0|0|\n1|0|5|1|1|Laptop|0|0|\n"},
      // Compared as text, "07" is not "7".
      {statements::product_in_category("120", "7"), "7|\n"},
      {statements::price_amounts("12"), "NULL|kalkul|NULL|0|0|0|\n"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(rows(snapshot().answer(c.statement, c.statement.text())), c.rows)
        << c.statement.text();
}

TEST_F(SnapshotAnswers, PerProductStatementsCostOneReadPerTable) {
  const std::uint64_t before = sent();
  std::vector<Statement> certain;
  for (const std::string IDX : {"5", "12", "120", "99"}) {
    certain.push_back(statements::product_columns({"gyarto", "nev"}, IDX));
    certain.push_back(statements::price_amounts(IDX));
    certain.push_back(statements::product_in_category(IDX, "7"));
    certain.push_back(statements::product_currency(IDX));
    certain.push_back(statements::fixed_price("hu", IDX));
  }
  // Product 120 has an extra text with an accented site code, which the server compares.
  for (const std::string IDX : {"5", "12", "99"})
    certain.push_back(statements::extra_texts(IDX, "sk"));
  certain.push_back(statements::level_zero_categories("5"));
  for (const Statement& statement : certain)
    snapshot().answer(statement, statement.text());
  // The main table, currencies, fixed prices, category links, categories and extra texts.
  EXPECT_EQ(sent() - before, 6u);
  for (const Statement& statement : certain)
    snapshot().answer(statement, statement.text());
  EXPECT_EQ(sent() - before, 6u);
}

TEST_F(SnapshotAnswers, WhatIsNotCertainGoesToTheServerOnce) {
  const Statement uncertain[] = {
      statements::level_zero_categories("12"),  // two links to one category tie in the order
      statements::extra_texts("120", "hu"),     // the accented site code
      statements::product_columns({"nev"}, "05"),
      statements::translation("Garancia", "HU"),
  };
  for (const Statement& statement : uncertain) {
    snapshot().answer(statement, statement.text());  // reads the tables it needs, if any
    const std::uint64_t before = sent();
    const Statement again = statement;
    snapshot().answer(again, again.text());
    EXPECT_EQ(sent(), before) << statement.text();
  }
}

TEST_F(SnapshotAnswers, ARefusalIsRepeatedWithTheServersMessage) {
  const Statement broken = statements::series_parent("D'Arcy", "Laptop");
  const std::string message = server_text(broken);
  ASSERT_EQ(message.rfind("refused: You have an error in your SQL syntax", 0), 0u) << message;
  EXPECT_EQ(answer_text(broken), message);
  const std::uint64_t before = sent();
  EXPECT_EQ(answer_text(broken), message);
  EXPECT_EQ(sent(), before);
}

TEST_F(SnapshotAnswers, SeeTheCatalogueAsItWasWhenTheSnapshotBegan) {
  const Statement asked_before = statements::translation("Garancia", "SK");
  const Statement asked_after = statements::translation("Garancia", "CZ");
  const Statement per_product = statements::extra_texts("99", "hu");
  EXPECT_EQ(rows(snapshot().answer(asked_before, asked_before.text())), "");
  PrivateMariaDb::instance().run_sql(
      "INSERT INTO laptop_adatbazis_forditasok (szocikk, language, forditas) VALUES "
      "('Garancia', 'SK', 'Záruka'), ('Garancia', 'CZ', 'Záruka');"
      "INSERT INTO extra_jellemzo (ex_product_type_id, ex_product_id, ex_site, ex_text) VALUES "
      "('0', '99', 'hu', 'new');");
  EXPECT_EQ(rows(snapshot().answer(asked_before, asked_before.text())), "");
  EXPECT_EQ(rows(snapshot().answer(asked_after, asked_after.text())), "");
  EXPECT_EQ(rows(snapshot().answer(per_product, per_product.text())), "");
  // Outside the snapshot the shop's edits show at once.
  EXPECT_EQ(server_text(asked_after), "forditas|\nZáruka|\n");
  transaction_.commit();
  EXPECT_EQ(in_snapshot_.connection.snapshot(), nullptr);
  PrivateMariaDb::instance().run_sql(
      "DELETE FROM laptop_adatbazis_forditasok WHERE szocikk='Garancia';"
      "DELETE FROM extra_jellemzo WHERE ex_product_id='99';");
}

TEST(ReadOnlySession, EveryConnectionOnlyReads) {
  DbSession db;
  db.query.set_statement(
      Statement(StatementKind::unlisted, {}, "SELECT @@session.tx_read_only AS ro;"));
  db.query.open();
  EXPECT_EQ(db.query.field_text("ro"), "1");
}

}  // namespace
}  // namespace talmo::testing
