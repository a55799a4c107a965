// Long descriptions of products of the golden catalogue, compared whole with the HTML files in
// tests/description/expected/: the marketplace form the Hungarian feeds carry and, for one
// product, the raw sections on the Slovak site.
#include <gtest/gtest.h>

#include <cstdint>

#include "core/database.h"
#include "core/statements.h"
#include "description/long_description.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

using Description = std::string (*)(Query&, const std::string&, const std::string&);

TEST(LongDescription, FixtureProductsAsTheShopShowsThem) {
  TALMO_NEEDS_DEFAULT_SITE();
  DbSession db;
  db.server.reset_database();
  db.server.run_sql_file(source_path("tests/e2e/fixtures/catalogue.sql"));
  struct Case {
    Description describe;
    std::string id, site, file;
  };
  for (const Case& c : std::vector<Case>{
           // Every section filled: both disk and card tables, icons, articles.
           {GENERATE_ARUKERESO_DESCRIPTION, "10", "hu", "marketplace_10.html"},
           // Extra texts, two operating systems, a battery without cells, a "van" in the WiFi.
           {GENERATE_ARUKERESO_DESCRIPTION, "12", "hu", "marketplace_12.html"},
           // AMD and Radeon icons, VGA and 3G lines.
           {GENERATE_ARUKERESO_DESCRIPTION, "13", "hu", "marketplace_13.html"},
           // Unreadable values: each failing section keeps what it built before the failure.
           {GENERATE_ARUKERESO_DESCRIPTION, "4", "hu", "marketplace_4.html"},
           // The Slovak row frame and words, inline styles and toggle scripts, no articles.
           {GENERATELEIRAS, "10", "sk", "raw_10_sk.html"},
       }) {
    SCOPED_TRACE(c.file);
    CapturedStdout out;
    const std::string html = c.describe(db.query, c.id, c.site);
    expect_same_text(read_file(source_path("tests/description/expected/" + c.file)), html);
  }
}

// Inside the run's snapshot Árukereső, Grando and Vatera share one building of a product's
// marketplace description: a later call prints the lines the building printed (product 4's
// failing sections) and leaves the cursor on the same statement, without asking the database.
TEST(LongDescription, InsideTheSnapshotBuiltOnceAndRepeatedAlike) {
  TALMO_NEEDS_DEFAULT_SITE();
  DbSession plain;
  plain.server.reset_database();
  plain.server.run_sql_file(source_path("tests/e2e/fixtures/catalogue.sql"));
  DbSession in_snapshot;
  Transaction transaction(in_snapshot.connection);
  transaction.start();
  for (const std::string id : {"4", "10"}) {
    SCOPED_TRACE(id);
    CapturedStdout expected_out;
    const std::string expected = GENERATE_ARUKERESO_DESCRIPTION(plain.query, id, "hu");
    const std::string expected_lines = expected_out.text();
    for (int use = 1; use <= 3; ++use) {
      SCOPED_TRACE(use);
      in_snapshot.query.set_statement(statements::product_ids());  // as the next lookup leaves it
      const std::uint64_t sent = in_snapshot.connection.statements_sent();
      CapturedStdout out;
      EXPECT_EQ(GENERATE_ARUKERESO_DESCRIPTION(in_snapshot.query, id, "hu"), expected);
      EXPECT_EQ(out.text(), expected_lines);
      EXPECT_EQ(in_snapshot.query.statement(), plain.query.statement());
      if (use > 1) {
        EXPECT_EQ(in_snapshot.connection.statements_sent(), sent);
      }
    }
  }
  CapturedStdout failing;
  GENERATE_ARUKERESO_DESCRIPTION(plain.query, "4", "hu");
  EXPECT_NE(failing.text().find("Error in Query: "), std::string::npos);
}

}  // namespace
}  // namespace talmo::testing
