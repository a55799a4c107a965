// The TALMO feed end to end, run as the operators run it ("y" for TALMO, no for the rest, ENTER):
// the whole feed file and the whole console must be what the shop expects. The fixtures hold the
// price sums behind the hand-written expected files.
#include <gtest/gtest.h>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

struct TalmoRun {
  TempDir dir;
  RunResult result;
  std::string path() const { return dir.path() + "/"; }
};

void run_talmo_on(const std::string& fixture, TalmoRun& run) {
  PrivateMariaDb::instance().reset_database();
  PrivateMariaDb::instance().run_sql_file(source_path("tests/e2e/fixtures/" + fixture));
  prepare_run_directory(run.dir.path());
  run.result = run_tool(run.dir.path(), "y\nn\nn\nn\nn\n\n");
}

// The console of a five-product catalogue whose filter prints `filter_lines`, leaving four items
// of which three reach the feed (the clearance item still counts in the progress).
std::string expected_console(const std::string& filter_lines, const std::string& path) {
  const std::string progress = "% :: EXPORT :: (Type: TALMO :: Site: HU) ";
  const std::string times = " | Time elapsed: <time> - ETA: <time>\n";
  return "Start TALMO export? (y/n): Start ARUKERESO export? (y/n): Start GRANDO export? (y/n): "
         "Start VATERA export? (y/n): Start HEUREKA.SK export? (y/n): Beginning TALMO export\n"
         "Allready added: 1\nAllready added: 2\nAllready added: 3\nAllready added: 4\n"
         "Allready added: 5\n"
         "Starting Generate_TALMO...\n"
         "Querying list for published items...\n" +
         filter_lines +                         //
         " 25" + progress + "1 of 4" + times +  //
         " 50" + progress + "2 of 4" + times +  //
         " 75" + progress + "3 of 4" + times +  //
         "100" + progress + "4 of 4" + times +  //
         "Converting to XML:  33%\nConverting to XML:  67%\nConverting to XML: 100%\n"
         "Saving File: " +
         path +
         "export/hu/talmo.xml\n"
         "Finished Generate_TALMO...\n"
         "ARUKERESO export skipped\nGRANDO export skipped\nVATERA export skipped\n"
         "HEUREKA.SK export skipped\n"
         "Software Finished succesfully. Press ENTER to quit";
}

void expect_feed(const TalmoRun& run, const std::string& filter_lines,
                 const std::string& expected_file) {
  EXPECT_EQ(run.result.exit_code, 0);
  EXPECT_EQ(run.result.err, "");
  expect_same_text(expected_console(filter_lines, run.path()), mask_times(run.result.out));
  ASSERT_TRUE(file_exists(run.path() + "export/hu/talmo.xml"));
  expect_same_text(read_file(source_path("tests/e2e/expected/" + expected_file)),
                   read_file(run.path() + "export/hu/talmo.xml"));
  EXPECT_FALSE(file_exists(run.path() + "export/hu/arukereso.csv"));
}

// Forint and euro prices, a fixed price, the 11130 slug threshold; 4 is not published and 3 is
// a clearance item.
TEST(TalmoFeed, SmallCatalogue) {
  TalmoRun run;
  run_talmo_on("talmo_small.sql", run);
  expect_feed(run,
              "Product with ID: 5 - Published\nProduct with ID: 4 - Not published\n"
              "Product with ID: 3 - Published\nProduct with ID: 2 - Published\n"
              "Product with ID: 1 - Published\n",
              "talmo_small.xml");
}

// Price ties, endings rounded down, newest rows, translated accessories; 5 is not published and
// 4 is a clearance item.
TEST(TalmoFeed, RealisticCatalogue) {
  TalmoRun run;
  run_talmo_on("talmo_catalogue.sql", run);
  expect_feed(run,
              "Product with ID: 5 - Not published\nProduct with ID: 4 - Published\n"
              "Product with ID: 3 - Published\nProduct with ID: 2 - Published\n"
              "Product with ID: 1 - Published\n",
              "talmo.xml");
}

}  // namespace
}  // namespace talmo::testing
