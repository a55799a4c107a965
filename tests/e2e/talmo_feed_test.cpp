// The TALMO feed of a realistic little catalogue, run as the operators run it: the whole feed file
// and the whole console must be what the shop expects (see the fixture for the price sums).
#include <gtest/gtest.h>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

// Five products, ids 1 to 5: 5 is not published, 4 is a clearance item, 3, 2 and 1 are written.
TEST(TalmoFeed, CatalogueGivesTheWholeFeedAndConsole) {
  PrivateMariaDb::instance().reset_database();
  PrivateMariaDb::instance().run_sql_file(source_path("tests/e2e/fixtures/talmo_catalogue.sql"));
  TempDir dir;
  const std::string path = dir.path() + "/";
  prepare_run_directory(dir.path());

  // TALMO only, then ENTER for the closing message.
  const RunResult result = run_tool(dir.path(), "y\nn\nn\nn\nn\n\n");

  // The clearance item still counts in the progress (4 items) but adds no row (3 rows).
  const std::string progress = "% :: EXPORT :: (Type: TALMO :: Site: HU) ";
  const std::string times = " | Time elapsed: <time> - ETA: <time>\n";
  const std::string expected_console =
      std::string(
          "Start TALMO export? (y/n): Start ARUKERESO export? (y/n): Start GRANDO export? (y/n): "
          "Start VATERA export? (y/n): Start HEUREKA.SK export? (y/n): "
          "Beginning TALMO export\n"
          "Allready added: 1\n"
          "Allready added: 2\n"
          "Allready added: 3\n"
          "Allready added: 4\n"
          "Allready added: 5\n"
          "Starting Generate_TALMO...\n"
          "Querying list for published items...\n"
          "Product with ID: 5 - Not published\n"
          "Product with ID: 4 - Published\n"
          "Product with ID: 3 - Published\n"
          "Product with ID: 2 - Published\n"
          "Product with ID: 1 - Published\n") +
      " 25" + progress + "1 of 4" + times +  //
      " 50" + progress + "2 of 4" + times +  //
      " 75" + progress + "3 of 4" + times +  //
      "100" + progress + "4 of 4" + times +  //
      "Converting to XML:  33%\n"
      "Converting to XML:  67%\n"
      "Converting to XML: 100%\n"
      "Saving File: " +
      path +
      "export/hu/talmo.xml\n"
      "Finished Generate_TALMO...\n"
      "ARUKERESO export skipped\n"
      "GRANDO export skipped\n"
      "VATERA export skipped\n"
      "HEUREKA.SK export skipped\n"
      "Software Finished succesfully. Press ENTER to quit";

  EXPECT_EQ(result.exit_code, 0);
  EXPECT_EQ(result.err, "");
  expect_same_text(expected_console, mask_times(result.out));
  ASSERT_TRUE(file_exists(path + "export/hu/talmo.xml"));
  expect_same_text(read_file(source_path("tests/e2e/expected/talmo.xml")),
                   read_file(path + "export/hu/talmo.xml"));
  EXPECT_FALSE(file_exists(path + "export/hu/arukereso.csv"));
}

}  // namespace
}  // namespace talmo::testing
