// The two ways a run reads the shop's database, on generated catalogues: from the snapshot's
// memory (the default) and with TALMO_SNAPSHOT=off, one statement per lookup. The shop must not
// see a difference: the five feeds and the whole console (times masked) byte for byte the same,
// also on hostile rows (quotes that break statements, line ends in values, keys with trailing
// blanks or in other letter case, missing, doubled and out-of-order side rows).
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <ostream>
#include <string>
#include <vector>

#include "core/errors.h"
#include "tests/support/subprocess.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

const char* const kFeeds[] = {"export/hu/talmo.xml", "export/hu/arukereso.csv",
                              "export/hu/grando.xml", "export/hu/vatera.csv",
                              "export/sk/heureka.xml"};

// What one run left: its console with the times masked, then the five feed files.
struct RunOutput {
  std::string console;
  std::vector<std::string> feeds;
};

// The generator's catalogue loaded into an empty database.
void load_catalogue(const std::vector<std::string>& generator_options) {
  std::vector<std::string> argv = {"python3", source_path("tools/generate_sample_catalogue.py")};
  argv.insert(argv.end(), generator_options.begin(), generator_options.end());
  const RunResult generated = run_process(argv, "", "", {}, 120);
  ASSERT_EQ(generated.exit_code, 0) << generated.err;
  PrivateMariaDb::instance().reset_database();
  PrivateMariaDb::instance().run_sql(generated.out);
}

// The server's count of statements received so far, read through the tool's own connection.
std::int64_t statements_received(DbSession& db) {
  db.query.set_statement(
      Statement(StatementKind::unlisted, {}, "SHOW GLOBAL STATUS LIKE 'Questions';"));
  db.query.open();
  return std::stoll(db.query.field_text("Value"));
}

// All five exports in `dir`, whose feeds are removed first; `environment` chooses the mode.
RunOutput run_all_exports(const std::string& dir, const Environment& environment) {
  for (const char* feed : kFeeds)
    std::remove((dir + "/" + feed).c_str());
  const RunResult result = run_tool(dir, "y\ny\ny\ny\ny\n\n", {}, environment);
  EXPECT_FALSE(result.timed_out);
  EXPECT_EQ(result.exit_code, 0);
  EXPECT_EQ(result.err, "");
  RunOutput output{mask_times(result.out), {}};
  for (const char* feed : kFeeds) {
    const std::string path = dir + "/" + feed;
    output.feeds.push_back(file_exists(path) ? read_file(path) : "(not written)");
  }
  return output;
}

struct Catalogue {
  const char* name;
  std::vector<std::string> generator_options;
};

void PrintTo(const Catalogue& catalogue, std::ostream* out) {
  *out << catalogue.name;
}

class SnapshotModes : public ::testing::TestWithParam<Catalogue> {};

TEST_P(SnapshotModes, FeedsAndConsoleAreTheSame) {
  ASSERT_NO_FATAL_FAILURE(load_catalogue(GetParam().generator_options));
  TempDir dir;
  prepare_run_directory(dir.path());
  const RunOutput from_snapshot = run_all_exports(dir.path(), {});
  const RunOutput one_by_one = run_all_exports(dir.path(), {{"TALMO_SNAPSHOT", "off"}});

  expect_same_text(one_by_one.console, from_snapshot.console);
  for (std::size_t f = 0; f < std::size(kFeeds); ++f) {
    SCOPED_TRACE(kFeeds[f]);
    expect_same_text(one_by_one.feeds[f], from_snapshot.feeds[f]);
  }
  // A catalogue that exported nothing would prove nothing.
  EXPECT_NE(from_snapshot.console.find("Product with ID: "), std::string::npos);
  EXPECT_GT(from_snapshot.feeds[1].size(), 100000u);
}

INSTANTIATE_TEST_SUITE_P(
    Catalogues, SnapshotModes,
    ::testing::Values(
        Catalogue{"Ordinary", {"--products", "250"}},
        // The seeds differ in what the tool must leave to the server: none of the uncertain keys
        // (17 of 220), an accented site code and a category id with a blank after it (3 of 220),
        // the accented code only (29 of 160), the blank only (17 of 160).
        Catalogue{"HostileNoUncertainKey", {"--products", "220", "--hostile", "--seed", "17"}},
        Catalogue{"HostileBothUncertainKeys", {"--products", "220", "--hostile", "--seed", "3"}},
        Catalogue{"HostileAccentedSite", {"--products", "160", "--hostile", "--seed", "29"}},
        Catalogue{"HostileBlankCategoryId", {"--products", "160", "--hostile", "--seed", "17"}}),
    [](const ::testing::TestParamInfo<Catalogue>& info) { return std::string(info.param.name); });

// The point of the snapshot: the per-product statements come from a few whole-table reads, and
// every other statement goes to the server once, so a catalogue of 400 products costs fewer
// statements than it has products, where one statement per lookup costs hundreds per product.
TEST(SnapshotStatements, FewerThanOnePerProduct) {
  ASSERT_NO_FATAL_FAILURE(load_catalogue({"--products", "400"}));
  DbSession db;
  TempDir dir;
  prepare_run_directory(dir.path());
  const std::int64_t before = statements_received(db);
  run_all_exports(dir.path(), {});
  const std::int64_t snapshot = statements_received(db) - before - 1;
  run_all_exports(dir.path(), {{"TALMO_SNAPSHOT", "off"}});
  const std::int64_t one_by_one = statements_received(db) - before - snapshot - 2;

  EXPECT_LT(snapshot, 400);
  EXPECT_GT(one_by_one, 400 * 100);
}

}  // namespace
}  // namespace talmo::testing
