// The tool as the operators run it: the built executable in a directory of its own, answers on
// standard input, the private database behind it.
#include <sys/stat.h>

#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

StringList list_directory(const std::string& dir) {
  StringList names;
  for (const auto& entry : std::filesystem::directory_iterator(dir)) {
    names.push_back(entry.path().filename().string());
  }
  return names;
}

std::size_t count_of(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

mode_t current_umask() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return mask;
}

const std::string kPrompts =
    "Start TALMO export? (y/n): Start ARUKERESO export? (y/n): Start GRANDO export? (y/n): "
    "Start VATERA export? (y/n): Start HEUREKA.SK export? (y/n): ";
const std::string kClosing = "Software Finished succesfully. Press ENTER to quit";
const std::string kLogin = kDefaultConfig;

// Three products: 3 is a clearance item, 2 is not published. Their description tables have all
// their sub-values, so the run prints no error line.
const std::string kCatalogue =
    "INSERT INTO laptop_adatbazis (id, published, sorszam, processzor, kijelzo, memoria) VALUES "
    "(1, 1, '11000', 'Intel|Core i5||||', '15.6|HD|1366x768|0|0|0|', '4 GB||'), "
    "(2, 0, '11001', NULL, NULL, NULL), "
    "(3, 1, 'xAkC12', 'AMD|A6||||', '11.6|HD|1366x768|0|0|0|', '2 GB||');"
    "INSERT INTO taxes (tax_country, tax_value) VALUES ('hu', '27'), ('sk', '20');";

class ToolRun : public ::testing::Test {
 protected:
  void SetUp() override {
    PrivateMariaDb::instance().reset_database();
    PrivateMariaDb::instance().run_sql(kCatalogue);
    prepare_run_directory(dir_.path());
  }

  RunResult run(const std::string& answers, const StringList& arguments = {}) {
    return run_tool(dir_.path(), answers, arguments);
  }

  std::string path() const { return dir_.path() + "/"; }

  TempDir dir_;
};

std::string skipped_lines() {
  return "TALMO export skipped\nARUKERESO export skipped\nGRANDO export skipped\n"
         "VATERA export skipped\nHEUREKA.SK export skipped\n";
}

// The console of one export over the catalogue above: ids listed newest first, the filter, one
// progress line per published item.
std::string export_console(const std::string& target, const std::string& starting,
                           const std::string& finishing, const std::string& filter_prefix,
                           const std::string& progress_label, const std::string& site,
                           const std::string& before_list, const std::string& after_loop) {
  return "Beginning " + target + " export\n" +
         "Allready added: 1\nAllready added: 2\nAllready added: 3\n" + starting + "\n" +
         before_list + filter_prefix + "3 - Published\n" + filter_prefix + "2 - Not published\n" +
         filter_prefix + "1 - Published\n" + " 50" + progress_label + site +
         ") 1 of 2 | Time elapsed: <time> - ETA: <time>\n" + "100" + progress_label + site +
         ") 2 of 2 | Time elapsed: <time> - ETA: <time>\n" + after_loop + finishing + "\n";
}

TEST_F(ToolRun, AllAnswersNoSkipsEveryExport) {
  const RunResult result = run("n\nN\nno\nx\n \n\n");
  EXPECT_EQ(result.exit_code, 0);
  EXPECT_EQ(result.out, kPrompts + skipped_lines() + kClosing);
  EXPECT_FALSE(file_exists(path() + "export/hu/talmo.xml"));
}

TEST_F(ToolRun, AllAnswersYesWritesEveryFeed) {
  const RunResult result = run("y\nY\nyes\ny\nYes\n\n");
  const std::string expected =
      kPrompts +
      export_console("TALMO", "Starting Generate_TALMO...", "Finished Generate_TALMO...",
                     "Product with ID: ", "% :: EXPORT :: (Type: TALMO :: Site: ", "HU",
                     "Querying list for published items...\n",
                     "Converting to XML: 100%\nSaving File: " + path() + "export/hu/talmo.xml\n") +
      export_console(
          "ARUKERESO", "Starting Generate_ARUKERESO...", "Finished Generate_ARUKERESO...",
          "Product with id: ", "% :: EXPORT :: (Type: ARUKERESO :: Site: ", "HU", "", "") +
      export_console("GRANDO", "Starting Generate_ARUKERESO...", "Finished Generate_ARUKERESO...",
                     "Product with id: ", "% :: EXPORT :: (Type: GRANDO :: Site: ", "HU", "",
                     "Converting to XML:  50%\nConverting to XML: 100%\n") +
      export_console("VATERA", "Starting Generate_VATERA...", "Finished Generate_VATERA...",
                     "Product with id: ", "% :: EXPORT :: (Type: VATERA :: Site: ", "HU", "",
                     "Saving output file: " + path() + "export/hu/vatera.csv\n") +
      export_console(
          "HEUREKA.SK", "Starting Generate_HEUREKA.SK...", "Finished Generate_HEUREKA.SK...",
          "Product with id: ", "% :: EXPORT :: Progress windows (Type: HEUREKA.SK :: Site: ", "SK",
          "",
          "Converting to XML:  50%\nConverting to XML: 100%\nSaving Output File: " + path() +
              "export/sk/heureka.xml\n") +
      kClosing;
  EXPECT_EQ(result.exit_code, 0);
  expect_same_text(expected, mask_times(result.out));

  // Product 1 everywhere; the clearance item 3 also in Grando and Heureka.sk. The whole files
  // are checked by the feed tests.
  EXPECT_EQ(count_of(read_file(path() + "export/hu/talmo.xml"), "<termek>"), 1u);
  EXPECT_EQ(count_of(read_file(path() + "export/hu/arukereso.csv"), "\"Főoldal>"), 1u);
  EXPECT_EQ(count_of(read_file(path() + "export/hu/grando.xml"), "<product>"), 2u);
  EXPECT_EQ(count_of(read_file(path() + "export/hu/vatera.csv"), "7937228;"), 1u);
  EXPECT_EQ(count_of(read_file(path() + "export/sk/heureka.xml"), "<SHOPITEM>"), 2u);
}

TEST_F(ToolRun, InputEndingEarlyAnswersNoToTheRest) {
  const RunResult result = run("n\nn");
  EXPECT_EQ(result.exit_code, 0);
  EXPECT_EQ(result.out, kPrompts + skipped_lines() + kClosing);
}

TEST_F(ToolRun, EmptyAnswerLineIsANoForThatPromptOnly) {
  const RunResult result = run("\nn\nn\nY\n");
  EXPECT_EQ(result.exit_code, 0);
  const std::string vatera_only =
      "TALMO export skipped\nARUKERESO export skipped\nGRANDO export skipped\n"
      "Beginning VATERA export\n";
  EXPECT_EQ(result.out.substr(0, kPrompts.size() + vatera_only.size()), kPrompts + vatera_only);
  EXPECT_TRUE(file_exists(path() + "export/hu/vatera.csv"));
  EXPECT_FALSE(file_exists(path() + "export/sk/heureka.xml"));
}

TEST_F(ToolRun, AnyOptionIsRefusedBeforeAnythingElse) {
  struct Case {
    StringList arguments;
    std::string out;
  };
  for (const Case& c : std::vector<Case>{
           {{"-x"}, "Invalid option at position 1: \"x\"\n"},
           {{"--help"}, "Invalid option at position 1: \"help\"\n"},
           {{"-a"}, "Invalid option at position 1: \"a\"\n"},
           {{"file", "--all=1"}, "Invalid option at position 2: \"all\"\n"},
       }) {
    ::unlink((path() + "config.dat").c_str());
    const RunResult result = run("y\n", c.arguments);
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_EQ(result.out, c.out);
    EXPECT_FALSE(file_exists(path() + "config.dat"));
  }
}

TEST_F(ToolRun, UnreachableServerEndsTheRunWithItsMessage) {
  // Nothing listens on port 1; the client library's own message is printed.
  const RunResult result = run_tool(dir_.path(), "y\n", {}, {{"MYSQL_TCP_PORT", "1"}});
  EXPECT_EQ(result.exit_code, 1);
  const std::string prefix = "Can't connect to server on '127.0.0.1' (";
  EXPECT_EQ(result.out.substr(0, prefix.size()), prefix);
  const std::string tail = ")\n" + kClosing;
  ASSERT_GT(result.out.size(), tail.size());
  EXPECT_EQ(result.out.substr(result.out.size() - tail.size()), tail);
  EXPECT_EQ(result.out.find("export"), std::string::npos);  // no question was asked
}

TEST_F(ToolRun, WrongPasswordIsReportedBeforeAnyQuestion) {
  write_file(path() + "config.dat", "127.0.0.1\n3306\nexprtr\nwrong\nuj_db\n");
  const RunResult result = run("n\nn\nn\nn\nn\n");
  EXPECT_EQ(result.exit_code, 1);
  EXPECT_EQ(result.out,
            "Access denied for user 'exprtr'@'localhost' (using password: YES)\n" + kClosing);
}

TEST_F(ToolRun, MissingSlovakFolderStopsTheRunAfterTheHungarianFeeds) {
  ::rmdir((path() + "export/sk").c_str());
  const RunResult result = run("y\ny\ny\ny\ny\n");
  EXPECT_EQ(result.exit_code, 1);
  const std::string tail =
      "Unable to create file \"" + path() + "export/sk/heureka.xml\"\n" + kClosing;
  ASSERT_GE(result.out.size(), tail.size());
  EXPECT_EQ(result.out.substr(result.out.size() - tail.size()), tail);
  EXPECT_TRUE(file_exists(path() + "export/hu/vatera.csv"));
  EXPECT_EQ(list_directory(path() + "export/hu").size(), 4u);  // no temporary file left
}

TEST_F(ToolRun, MissingConfigIsWrittenWithDefaultsForItsOwnerOnly) {
  ::unlink((path() + "config.dat").c_str());
  const RunResult result = run("n\nn\nn\nn\nn\n");
  EXPECT_EQ(result.exit_code, 0);
  EXPECT_EQ(result.out, kPrompts + skipped_lines() + kClosing);
  EXPECT_EQ(read_file(path() + "config.dat"), kLogin);
  struct stat info {};
  ASSERT_EQ(::stat((path() + "config.dat").c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0600u);
}

TEST_F(ToolRun, ShortConfigCountsAsReadAndIsNotRewritten) {
  // Only the host: user, password and database read as empty (the client library then logs in
  // as the system user), which the server refuses.
  write_file(path() + "config.dat", "127.0.0.1\r\n");
  const RunResult result = run("n\n");
  EXPECT_EQ(result.exit_code, 1);
  const std::string prefix = "Access denied for user '";
  EXPECT_EQ(result.out.substr(0, prefix.size()), prefix);
  EXPECT_EQ(result.out.substr(result.out.size() - kClosing.size() - 1), "\n" + kClosing);
  EXPECT_EQ(read_file(path() + "config.dat"), "127.0.0.1\r\n");
}

TEST_F(ToolRun, UnwritableConfigEndsTheRunThroughTheFrame) {
  // A folder where config.dat should be can be neither read nor replaced, even by root.
  ::unlink((path() + "config.dat").c_str());
  ::mkdir((path() + "config.dat").c_str(), 0755);
  write_file(path() + "config.dat/keep", "");
  const RunResult result = run("y\n");
  EXPECT_EQ(result.exit_code, 1);
  EXPECT_EQ(result.out, "Unable to create file \"" + path() + "config.dat\"\n");
  EXPECT_EQ(list_directory(dir_.path()).size(), 3u);  // config.dat, export, the executable
}

TEST_F(ToolRun, RewrittenFeedKeepsItsModeAndNewFeedsGetTheUmaskDefault) {
  write_file(path() + "export/hu/talmo.xml", "old");
  ::chmod((path() + "export/hu/talmo.xml").c_str(), 0640);
  const RunResult result = run("y\nn\ny\n");
  EXPECT_EQ(result.exit_code, 0);
  struct stat info {};
  ASSERT_EQ(::stat((path() + "export/hu/talmo.xml").c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0640u);
  ASSERT_EQ(::stat((path() + "export/hu/grando.xml").c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0666u & ~current_umask());
}

TEST_F(ToolRun, UnpublishedCatalogueLeavesThePreviousTalmoFeed) {
  PrivateMariaDb::instance().run_sql("UPDATE laptop_adatbazis SET published=0;");
  write_file(path() + "export/hu/talmo.xml", "previous feed\n");
  const RunResult result = run("y\n");
  EXPECT_EQ(result.exit_code, 0);
  EXPECT_EQ(read_file(path() + "export/hu/talmo.xml"), "previous feed\n");
  EXPECT_EQ(result.out.find("% :: EXPORT ::"), std::string::npos);
}

}  // namespace
}  // namespace talmo::testing
