// The checker over what the real export writes: the golden catalogue run for all five feeds,
// checked and published as the shop would after each export.
#include <gtest/gtest.h>

#include "tests/feedcheck/feedcheck_support.h"

namespace talmo::testing {
namespace {

// catalogue_export.txt was read against the feed checker's rules in the README like the reports
// of the hand-made feeds: every problem it lists is one the golden catalogue plants on purpose.
TEST(CheckAfterExport, TheFiveFeedsOfARealRun) {
  TALMO_NEEDS_DEFAULT_SITE();
  PrivateMariaDb::instance().load_golden_catalogue();
  TempDir dir;
  prepare_run_directory(dir.path());
  const RunResult exported = run_tool(dir.path(), "y\ny\ny\ny\ny\n\n");
  ASSERT_EQ(exported.exit_code, 0) << exported.out;
  const std::string export_dir = dir.path() + "/export";
  const RunResult checked = run_feedcheck({export_dir});
  EXPECT_EQ(checked.exit_code, 1);
  expect_same_text(expected_report("catalogue_export.txt", export_dir), checked.out);

  write_file(dir.path() + "/www/hu/talmo.xml", "an older copy\n");
  const RunResult published =
      run_feedcheck({export_dir, "--publish", dir.path() + "/www", "--json"});
  EXPECT_EQ(published.exit_code, 1);
  for (const char* file :
       {"hu/talmo.xml", "hu/arukereso.csv", "hu/grando.xml", "hu/vatera.csv", "sk/heureka.xml"}) {
    SCOPED_TRACE(file);
    EXPECT_EQ(read_file(dir.path() + "/www/" + file), read_file(export_dir + "/" + file));
  }
  EXPECT_NE(
      published.out.find("\"items\": 8, \"file_problem\": null, \"problems\": {\"bad-address\": "
                         "2}, \"warnings\": {}, \"verdict\": \"published\", \"verdict_reason\": "
                         "\"\", \"changes\": null, \"not_compared\": \"the published copy has "
                         "a whole-file problem\"}"),
      std::string::npos)
      << published.out;
}

}  // namespace
}  // namespace talmo::testing
