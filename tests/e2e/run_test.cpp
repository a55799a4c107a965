// The tool as the operators run it, around the feeds: answers, options, login settings and feed
// folders that are not there. What the feeds hold is the golden catalogue's business.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

const std::string kPrompts =
    "Start TALMO export? (y/n): Start ARUKERESO export? (y/n): Start GRANDO export? (y/n): "
    "Start VATERA export? (y/n): Start HEUREKA.SK export? (y/n): ";
const std::string kSkipped =
    "TALMO export skipped\nARUKERESO export skipped\nGRANDO export skipped\n";
const std::string kClosing = "Software Finished succesfully. Press ENTER to quit";

// One published laptop (1), one unpublished (2), one clearance item (3).
class ToolRun : public ::testing::Test {
 protected:
  void SetUp() override {
    PrivateMariaDb::instance().reset_database();
    PrivateMariaDb::instance().run_sql(
        "INSERT INTO laptop_adatbazis (id, published, sorszam) VALUES "
        "(1, 1, '11000'), (2, 0, '11001'), (3, 1, 'xAkC12');"
        "INSERT INTO taxes (tax_country, tax_value) VALUES ('hu', '27'), ('sk', '20');");
    prepare_run_directory(dir_.path());
  }

  TempDir dir_;
  const std::string path_ = dir_.path() + "/";
};

TEST_F(ToolRun, OnlyAnswersStartingWithYRunAnExportAndAMissingConfigIsWritten) {
  std::filesystem::remove(path_ + "config.dat");
  const std::string all_no =
      kPrompts + kSkipped + "VATERA export skipped\nHEUREKA.SK export skipped\n" + kClosing;
  for (const auto& [answers, console, written] :
       std::vector<std::tuple<std::string, std::string, std::size_t>>{
           {"n\nN\nno\nx\n \n\n", all_no, 0},
           {"n\nn", all_no, 0},  // input ending early answers no
           {"\nn\nn\nYes\n", kPrompts + kSkipped + "Beginning VATERA export\n", 1}}) {
    SCOPED_TRACE(answers);
    std::filesystem::remove_all(path_ + "export/hu");
    std::filesystem::create_directory(path_ + "export/hu");
    const RunResult result = run_tool(dir_.path(), answers);
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_EQ(result.out.substr(0, console.size()), console);
    EXPECT_EQ(entries_in(path_ + "export/hu"), written);
    EXPECT_EQ(file_exists(path_ + "export/hu/vatera.csv"), written == 1);
  }
  // With the default login, for its owner only.
  EXPECT_EQ(read_file(path_ + "config.dat"), kDefaultConfig);
  EXPECT_EQ(mode_of(path_ + "config.dat"), 0600u);
}

TEST_F(ToolRun, AnyOptionIsRefusedBeforeAnythingElse) {
  std::filesystem::remove(path_ + "config.dat");
  for (const auto& [arguments, out] : std::vector<std::pair<std::vector<std::string>, std::string>>{
           {{"--help"}, "Invalid option at position 1: \"help\"\n"},
           {{"file", "--all=1"}, "Invalid option at position 2: \"all\"\n"}}) {
    const RunResult result = run_tool(dir_.path(), "y\n", arguments);
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_EQ(result.out, out);
    EXPECT_FALSE(file_exists(path_ + "config.dat"));
  }
}

TEST_F(ToolRun, LoginFailuresEndTheRunBeforeAnyQuestion) {
  const std::string server = std::to_string(PrivateMariaDb::instance().port());
  for (const auto& [config, port, start, end] : std::vector<std::array<std::string, 4>>{
           // Nothing listens on port 1: the client library's own message.
           {kDefaultConfig, "1", "Can't connect to server on '127.0.0.1' (", ")\n"},
           {"127.0.0.1\n3306\nexprtr\nwrong\nuj_db\n", server,
            "Access denied for user 'exprtr'@'localhost' (using password: YES)\n", ""},
           // Only the host: user, password and database read as empty; the file is not rewritten.
           {"127.0.0.1\r\n", server, "Access denied for user '", "\n"}}) {
    write_file(path_ + "config.dat", config);
    const RunResult result = run_tool(dir_.path(), "y\n", {}, {{"MYSQL_TCP_PORT", port}});
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_EQ(result.out.substr(0, start.size()), start);
    EXPECT_TRUE(result.out.ends_with(end + kClosing)) << result.out;
    EXPECT_EQ(result.out.find("(y/n)"), std::string::npos);
    EXPECT_EQ(read_file(path_ + "config.dat"), config);
  }
}

TEST_F(ToolRun, MissingSlovakFolderStopsTheRunAfterTheHungarianFeeds) {
  std::filesystem::remove(path_ + "export/sk");
  const RunResult result = run_tool(dir_.path(), "y\ny\ny\ny\ny\n");
  EXPECT_EQ(result.exit_code, 1);
  EXPECT_TRUE(result.out.ends_with("Unable to create file \"" + path_ +
                                   "export/sk/heureka.xml\"\n" + kClosing));
  EXPECT_EQ(entries_in(path_ + "export/hu"), 4u);  // no temporary file left
}

TEST_F(ToolRun, UnpublishedCatalogueLeavesThePreviousTalmoFeed) {
  PrivateMariaDb::instance().run_sql("UPDATE laptop_adatbazis SET published=0;");
  write_file(path_ + "export/hu/talmo.xml", "previous feed\n");
  const RunResult result = run_tool(dir_.path(), "y\n");
  EXPECT_EQ(result.exit_code, 0);
  EXPECT_EQ(read_file(path_ + "export/hu/talmo.xml"), "previous feed\n");
  EXPECT_EQ(result.out.find("% :: EXPORT ::"), std::string::npos);
}

}  // namespace
}  // namespace talmo::testing
