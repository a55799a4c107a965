// Whole runs as the operators make them, "y" for all five feeds: the golden catalogue
// (tests/e2e/fixtures/catalogue.sql) against its expected feeds and console, and generated
// catalogues read from the snapshot's memory (the default) against TALMO_SNAPSHOT=off, one
// statement per lookup: the shop must not see a difference.
#include <gtest/gtest.h>

#include <cstdio>

#include "core/errors.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

const char* const kFeeds[] = {"hu/talmo.xml", "hu/arukereso.csv", "hu/grando.xml", "hu/vatera.csv",
                              "sk/heureka.xml"};

// What a run of all five exports left in `dir`: its console (times masked), then the feeds.
std::vector<std::string> run_all_exports(const std::string& dir, const Environment& env = {}) {
  for (const char* feed : kFeeds)
    std::remove((dir + "/export/" + feed).c_str());
  const RunResult result = run_tool(dir, "y\ny\ny\ny\ny\n\n", {}, env);
  EXPECT_FALSE(result.timed_out);
  EXPECT_EQ(result.exit_code, 0);
  EXPECT_EQ(result.err, "");
  std::vector<std::string> outputs = {mask_times(result.out)};
  for (const char* feed : kFeeds) {
    const std::string path = dir + "/export/" + feed;
    outputs.push_back(file_exists(path) ? read_file(path) : "(not written)");
  }
  return outputs;
}

TEST(GoldenCatalogue, FeedsAndConsole) {
  TALMO_NEEDS_DEFAULT_SITE();
  PrivateMariaDb::instance().load_golden_catalogue();
  TempDir dir;
  prepare_run_directory(dir.path());
  const std::vector<std::string> outputs = run_all_exports(dir.path());
  // The expected console names the tool's directory "<path>".
  std::string console = read_file(source_path("tests/e2e/expected/catalogue/console.txt"));
  for (std::size_t at; (at = console.find("<path>")) != std::string::npos;)
    console.replace(at, 6, dir.path() + "/");
  expect_same_text(console, outputs[0]);
  for (std::size_t f = 0; f < std::size(kFeeds); ++f) {
    SCOPED_TRACE(kFeeds[f]);
    expect_same_text(
        read_file(source_path("tests/e2e/expected/catalogue/" + std::string(kFeeds[f] + 3))),
        outputs[f + 1]);
  }
}

// The server's count of statements received so far.
std::int64_t statements_received(DbSession& db) {
  db.query.set_statement(
      Statement(StatementKind::unlisted, {}, "SHOW GLOBAL STATUS LIKE 'Questions';"));
  db.query.open();
  return std::stoll(db.query.field_text("Value"));
}

// Hostile rows: quotes that break statements, line ends in values, keys with trailing blanks or
// in other letter case, missing, doubled and out-of-order side rows. The seeds differ in what is
// left to the server: none of the uncertain keys, an accented site code and a category id with
// a blank after it, the accented code only, the blank only.
class SnapshotModes : public ::testing::TestWithParam<const char*> {};

// The point of the snapshot besides: a few whole-table reads and each other statement once,
// where one statement per lookup costs hundreds per product.
TEST_P(SnapshotModes, FeedsAndConsoleAreTheSameFromFewerStatements) {
  PrivateMariaDb::instance().load_sample_catalogue(GetParam());
  DbSession db;
  TempDir dir;
  prepare_run_directory(dir.path());
  const std::int64_t before = statements_received(db);
  const std::vector<std::string> from_snapshot = run_all_exports(dir.path());
  const std::int64_t snapshot = statements_received(db) - before - 1;
  const std::vector<std::string> one_by_one =
      run_all_exports(dir.path(), {{"TALMO_SNAPSHOT", "off"}});
  // Under 250 whatever the size: one more statement per product would pass it in every row.
  EXPECT_LT(snapshot, 250);
  EXPECT_GT(statements_received(db) - before - snapshot - 2, 160 * 100);
  for (std::size_t k = 0; k < one_by_one.size(); ++k)
    expect_same_text(one_by_one[k], from_snapshot[k]);
  // A catalogue that exported nothing would prove nothing.
  EXPECT_NE(from_snapshot[0].find("Product with ID: "), std::string::npos);
  EXPECT_GT(from_snapshot[2].size(), 100000u);
}

INSTANTIATE_TEST_SUITE_P(Catalogues, SnapshotModes,
                         ::testing::Values("--products 250", "--products 220 --hostile --seed 17",
                                           "--products 220 --hostile --seed 3",
                                           "--products 160 --hostile --seed 29",
                                           "--products 160 --hostile --seed 17"));

}  // namespace
}  // namespace talmo::testing
