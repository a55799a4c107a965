// The tool as the operators run it, around the feeds: answers, options, login settings, the
// database going away and feed files that cannot be written. What the feeds hold is the golden
// catalogue's business.
#include <sys/stat.h>

#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

const std::string kPrompts =
    "Start TALMO export? (y/n): Start ARUKERESO export? (y/n): Start GRANDO export? (y/n): "
    "Start VATERA export? (y/n): Start HEUREKA.SK export? (y/n): ";
const std::string kSkipped =
    "TALMO export skipped\nARUKERESO export skipped\nGRANDO export skipped\n"
    "VATERA export skipped\nHEUREKA.SK export skipped\n";
const std::string kClosing = "Software Finished succesfully. Press ENTER to quit";

bool starts_with(const std::string& text, const std::string& start) {
  return text.compare(0, start.size(), start) == 0;
}
bool ends_with(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

mode_t mode_of(const std::string& path) {
  struct stat info {};
  EXPECT_EQ(::stat(path.c_str(), &info), 0) << path;
  return info.st_mode & 0777;
}

std::size_t entries_in(const std::string& dir) {
  const std::filesystem::directory_iterator entries(dir);
  return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

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

  RunResult run(const std::string& answers, const StringList& arguments = {}) {
    return run_tool(dir_.path(), answers, arguments);
  }

  std::string path() const { return dir_.path() + "/"; }

  TempDir dir_;
};

TEST_F(ToolRun, OnlyAnswersStartingWithYRunAnExport) {
  struct Case {
    std::string answers, console_start, written;
  };
  for (const Case& c : std::vector<Case>{
           {"n\nN\nno\nx\n \n\n", kPrompts + kSkipped + kClosing, ""},
           {"n\nn", kPrompts + kSkipped + kClosing, ""},  // input ending early answers no
           {"\nn\nn\nyes\n",
            kPrompts + "TALMO export skipped\nARUKERESO export skipped\nGRANDO export skipped\n" +
                "Beginning VATERA export\n",
            "vatera.csv"},
       }) {
    SCOPED_TRACE(c.answers);
    std::filesystem::remove_all(path() + "export/hu");
    std::filesystem::create_directory(path() + "export/hu");
    const RunResult result = run(c.answers);
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_TRUE(starts_with(result.out, c.console_start)) << result.out;
    EXPECT_EQ(entries_in(path() + "export/hu"), c.written.empty() ? 0u : 1u);
    if (!c.written.empty()) {
      EXPECT_TRUE(file_exists(path() + "export/hu/" + c.written));
    }
  }
}

TEST_F(ToolRun, AnyOptionIsRefusedBeforeAnythingElse) {
  struct Case {
    StringList arguments;
    std::string out;
  };
  ::unlink((path() + "config.dat").c_str());
  for (const Case& c : std::vector<Case>{
           {{"-x"}, "Invalid option at position 1: \"x\"\n"},
           {{"--help"}, "Invalid option at position 1: \"help\"\n"},
           {{"file", "--all=1"}, "Invalid option at position 2: \"all\"\n"},
       }) {
    const RunResult result = run("y\n", c.arguments);
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_EQ(result.out, c.out);
    EXPECT_FALSE(file_exists(path() + "config.dat"));
  }
}

TEST_F(ToolRun, LoginFailuresEndTheRunBeforeAnyQuestion) {
  // Nothing listens on port 1: the client library's own message.
  RunResult result = run_tool(dir_.path(), "y\n", {}, {{"MYSQL_TCP_PORT", "1"}});
  EXPECT_EQ(result.exit_code, 1);
  EXPECT_TRUE(starts_with(result.out, "Can't connect to server on '127.0.0.1' (")) << result.out;
  EXPECT_TRUE(ends_with(result.out, ")\n" + kClosing)) << result.out;
  write_file(path() + "config.dat", "127.0.0.1\n3306\nexprtr\nwrong\nuj_db\n");
  result = run("n\n");
  EXPECT_EQ(result.exit_code, 1);
  EXPECT_EQ(result.out,
            "Access denied for user 'exprtr'@'localhost' (using password: YES)\n" + kClosing);
  // Only the host: user, password and database read as empty, and the file is not rewritten.
  write_file(path() + "config.dat", "127.0.0.1\r\n");
  result = run("n\n");
  EXPECT_EQ(result.exit_code, 1);
  EXPECT_TRUE(starts_with(result.out, "Access denied for user '")) << result.out;
  EXPECT_TRUE(ends_with(result.out, "\n" + kClosing)) << result.out;
  EXPECT_EQ(read_file(path() + "config.dat"), "127.0.0.1\r\n");
}

TEST_F(ToolRun, MissingConfigIsWrittenWithDefaultsForItsOwnerOnly) {
  ::unlink((path() + "config.dat").c_str());
  const RunResult result = run("n\nn\nn\nn\nn\n");
  EXPECT_EQ(result.exit_code, 0);
  EXPECT_EQ(result.out, kPrompts + kSkipped + kClosing);
  EXPECT_EQ(read_file(path() + "config.dat"), kDefaultConfig);
  EXPECT_EQ(mode_of(path() + "config.dat"), 0600u);
}

TEST_F(ToolRun, UnwritableConfigEndsTheRunThroughTheFrame) {
  // A folder where config.dat should be can be neither read nor replaced, even by root.
  ::unlink((path() + "config.dat").c_str());
  write_file(path() + "config.dat/keep", "");
  const RunResult result = run("y\n");
  EXPECT_EQ(result.exit_code, 1);
  EXPECT_EQ(result.out, "Unable to create file \"" + path() + "config.dat\"\n");
  EXPECT_EQ(entries_in(dir_.path()), 3u);  // config.dat, export, the executable
}

TEST_F(ToolRun, MissingSlovakFolderStopsTheRunAfterTheHungarianFeeds) {
  ::rmdir((path() + "export/sk").c_str());
  const RunResult result = run("y\ny\ny\ny\ny\n");
  EXPECT_EQ(result.exit_code, 1);
  EXPECT_TRUE(ends_with(
      result.out, "Unable to create file \"" + path() + "export/sk/heureka.xml\"\n" + kClosing));
  EXPECT_EQ(entries_in(path() + "export/hu"), 4u);  // no temporary file left
}

TEST_F(ToolRun, RewrittenFeedKeepsItsModeAndNewFeedsGetTheUmaskDefault) {
  write_file(path() + "export/hu/talmo.xml", "old");
  ::chmod((path() + "export/hu/talmo.xml").c_str(), 0640);
  EXPECT_EQ(run("y\nn\ny\n").exit_code, 0);
  EXPECT_EQ(mode_of(path() + "export/hu/talmo.xml"), 0640u);
  const mode_t mask = ::umask(0);
  ::umask(mask);
  EXPECT_EQ(mode_of(path() + "export/hu/grando.xml"), 0666u & ~mask);
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
