// The TALMO feed end to end: a small catalogue, the tool run with one "y", the whole file and the
// whole console compared with what the shop expects.
#include <gtest/gtest.h>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

TEST(TalmoExport, SmallCatalogueGivesTheExpectedFeedAndConsole) {
  PrivateMariaDb::instance().reset_database();
  PrivateMariaDb::instance().run_sql_file(source_path("tests/e2e/fixtures/talmo_small.sql"));
  TempDir dir;
  const std::string path = dir.path() + "/";
  prepare_run_directory(dir.path());

  const RunResult result = run_tool(dir.path(), "y\nn\nn\nn\nn\n\n");

  EXPECT_EQ(result.exit_code, 0);
  expect_same_text(
      "Start TALMO export? (y/n): Start ARUKERESO export? (y/n): Start GRANDO export? (y/n): "
      "Start VATERA export? (y/n): Start HEUREKA.SK export? (y/n): Beginning TALMO export\n"
      "Allready added: 1\nAllready added: 2\nAllready added: 3\nAllready added: 4\n"
      "Allready added: 5\n"
      "Starting Generate_TALMO...\n"
      "Querying list for published items...\n"
      "Product with ID: 5 - Published\n"
      "Product with ID: 4 - Not published\n"
      "Product with ID: 3 - Published\n"
      "Product with ID: 2 - Published\n"
      "Product with ID: 1 - Published\n"
      " 25% :: EXPORT :: (Type: TALMO :: Site: HU) 1 of 4 | Time elapsed: <time> - ETA: <time>\n"
      " 50% :: EXPORT :: (Type: TALMO :: Site: HU) 2 of 4 | Time elapsed: <time> - ETA: <time>\n"
      " 75% :: EXPORT :: (Type: TALMO :: Site: HU) 3 of 4 | Time elapsed: <time> - ETA: <time>\n"
      "100% :: EXPORT :: (Type: TALMO :: Site: HU) 4 of 4 | Time elapsed: <time> - ETA: <time>\n"
      "Converting to XML:  33%\n"
      "Converting to XML:  67%\n"
      "Converting to XML: 100%\n"
      "Saving File: " +
          path +
          "export/hu/talmo.xml\n"
          "Finished Generate_TALMO...\n"
          "ARUKERESO export skipped\nGRANDO export skipped\nVATERA export skipped\n"
          "HEUREKA.SK export skipped\n"
          "Software Finished succesfully. Press ENTER to quit",
      mask_times(result.out));
  expect_same_text(read_file(source_path("tests/e2e/expected/talmo_small.xml")),
                   read_file(path + "export/hu/talmo.xml"));
}

}  // namespace
}  // namespace talmo::testing
