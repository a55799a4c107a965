// The Árukereső feed end to end ("y" for Árukereső only): the whole arukereso.csv, long
// descriptions included, and the whole console, against files worked out by hand.
#include <gtest/gtest.h>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

// The statement a description table was translating when it ran out of sub-values.
std::string translation_error(const std::string& label) {
  return "Error in Query: \r\rSELECT forditas FROM laptop_adatbazis_forditasok WHERE szocikk='" +
         label + "' AND language='HU' ORDER BY id DESC LIMIT 1;\n\r\r\n";
}

TEST(ArukeresoFeed, SmallCatalogue) {
  PrivateMariaDb::instance().reset_database();
  PrivateMariaDb::instance().run_sql_file(source_path("tests/e2e/fixtures/arukereso_small.sql"));
  TempDir dir;
  prepare_run_directory(dir.path());
  const RunResult result = run_tool(dir.path(), "n\ny\nn\nn\nn\n\n");
  const std::string path = dir.path() + "/";

  const std::string progress = "% :: EXPORT :: (Type: ARUKERESO :: Site: HU) ";
  const std::string times = " | Time elapsed: <time> - ETA: <time>\n";
  const std::string expected_console =
      "Start TALMO export? (y/n): Start ARUKERESO export? (y/n): Start GRANDO export? (y/n): "
      "Start VATERA export? (y/n): Start HEUREKA.SK export? (y/n): TALMO export skipped\n"
      "Beginning ARUKERESO export\n"
      "Allready added: 1\nAllready added: 2\nAllready added: 3\nAllready added: 4\n"
      "Starting Generate_ARUKERESO...\n"
      "Product with id: 13 - Not published\nProduct with id: 12 - Published\n"
      "Product with id: 11 - Published\nProduct with id: 10 - Published\n" +
      (" 33" + progress + "1 of 3" + times) +  // 12, the clearance item, is skipped
      (" 67" + progress + "2 of 3" + times) +  // 11 has no processor, display or memory
      translation_error("Típus") + translation_error("HD") + translation_error("Típus") +
      ("100" + progress + "3 of 3" + times) +
      "Finished Generate_ARUKERESO...\n"
      "GRANDO export skipped\nVATERA export skipped\nHEUREKA.SK export skipped\n"
      "Software Finished succesfully. Press ENTER to quit";

  EXPECT_EQ(result.exit_code, 0);
  EXPECT_EQ(result.err, "");
  expect_same_text(expected_console, mask_times(result.out));
  ASSERT_TRUE(file_exists(path + "export/hu/arukereso.csv"));
  expect_same_text(read_file(source_path("tests/e2e/expected/arukereso_small.csv")),
                   read_file(path + "export/hu/arukereso.csv"));
}

}  // namespace
}  // namespace talmo::testing
