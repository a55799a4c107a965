// Faults during a nightly run, against the real private server: what the shop must never lose is
// a good feed replaced by a broken one, and what it must always get is an exit status that tells
// a scheduler whether every chosen feed was refreshed.
#include <fcntl.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <map>
#include <memory>

#include "tests/support/subprocess.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

namespace fs = std::filesystem;

// The five feeds in export order, with the progress text of their third item.
struct Feed {
  const char* file;
  const char* third_item;
};
constexpr std::array<Feed, 5> kFeeds = {{
    {"export/hu/talmo.xml", "(Type: TALMO :: Site: HU) 3 of"},
    {"export/hu/arukereso.csv", "(Type: ARUKERESO :: Site: HU) 3 of"},
    {"export/hu/grando.xml", "(Type: GRANDO :: Site: HU) 3 of"},
    {"export/hu/vatera.csv", "(Type: VATERA :: Site: HU) 3 of"},
    {"export/sk/heureka.xml", "(Type: HEUREKA.SK :: Site: SK) 3 of"},
}};

const std::string kAllYes = "y\ny\ny\ny\ny\n\n";
const std::string kClosing = "Software Finished succesfully. Press ENTER to quit";
// Every lookup asks the server, so a fault is met at once (a snapshot may have read ahead).
const Environment kOneStatementPerLookup = {{"TALMO_SNAPSHOT", "off"}};

void load_catalogue() {
  PrivateMariaDb& server = PrivateMariaDb::instance();
  server.reset_database();
  const RunResult sample = run_process(
      {"python3", source_path("tools/generate_sample_catalogue.py"), "--products", "60"}, "", "",
      {}, 60);
  ASSERT_EQ(sample.exit_code, 0) << sample.err;
  server.run_sql(sample.out);
}

// Files in the feed folders that are no feed: what a run left behind.
std::vector<std::string> leftovers(const std::string& dir) {
  std::vector<std::string> found;
  for (const char* site : {"/export/hu", "/export/sk"}) {
    for (const auto& entry : fs::directory_iterator(dir + site)) {
      const std::string name = entry.path().filename();
      if (name.find(".tmp-") != std::string::npos)
        found.push_back(name);
    }
  }
  return found;
}

// The shell redirection that feeds `answers` to a background run.
std::string answered(const std::string& dir, const std::string& answers) {
  write_file(dir + "/answers.txt", answers);
  return "<answers.txt";
}

void write_old_feeds(const std::string& dir) {
  for (const Feed& feed : kFeeds)
    write_file(dir + "/" + feed.file, std::string("yesterday's ") + feed.file + "\n");
}

class Faults : public ::testing::Test {
 protected:
  // The feeds of a healthy run: what a complete feed must look like.
  static void SetUpTestSuite() {
    load_catalogue();
    TempDir dir;
    prepare_run_directory(dir.path());
    const RunResult healthy = run_tool(dir.path(), kAllYes, {}, kOneStatementPerLookup);
    ASSERT_EQ(healthy.exit_code, 0) << healthy.out;
    for (const Feed& feed : kFeeds)
      complete_[feed.file] = read_file(dir.path() + "/" + feed.file);
  }

  void SetUp() override { prepare_run_directory(dir_.path()); }

  // Each feed is yesterday's or a complete one, never anything in between.
  void expect_old_or_complete(std::size_t refreshed) {
    for (std::size_t k = 0; k < kFeeds.size(); ++k) {
      const std::string text = read_file(dir_.path() + "/" + kFeeds[k].file);
      if (k < refreshed)
        expect_same_text(complete_[kFeeds[k].file], text);
      else
        EXPECT_TRUE(text == std::string("yesterday's ") + kFeeds[k].file + "\n")
            << kFeeds[k].file << " was replaced by " << text.size() << " bytes";
    }
    EXPECT_EQ(leftovers(dir_.path()), std::vector<std::string>{});
  }

  static std::map<std::string, std::string> complete_;
  TempDir dir_;
};

std::map<std::string, std::string> Faults::complete_;

TEST_F(Faults, ServerKilledDuringEachExportKeepsItsFeedAndFailsTheRun) {
  for (std::size_t k = 0; k < kFeeds.size(); ++k) {
    SCOPED_TRACE(kFeeds[k].file);
    write_old_feeds(dir_.path());
    {
      BackgroundTool tool(dir_.path(), answered(dir_.path(), kAllYes), kOneStatementPerLookup);
      ASSERT_TRUE(tool.wait_for_output(kFeeds[k].third_item, 120)) << tool.out();
      PrivateMariaDb::instance().signal_server(SIGKILL);
      EXPECT_EQ(tool.wait(120), 1);
      const std::string out = tool.out();
      // The message of the lost connection alone, then the closing message: no lookup's
      // error line and no later export.
      const std::size_t closing = out.rfind("\n" + kClosing);
      ASSERT_NE(closing, std::string::npos) << out;
      const std::string last = out.substr(out.rfind('\n', closing - 1) + 1);
      EXPECT_EQ(last.find("Error in Query"), std::string::npos) << last;
      for (std::size_t later = k + 1; later < kFeeds.size(); ++later)
        EXPECT_EQ(out.find(kFeeds[later].third_item), std::string::npos);
    }
    expect_old_or_complete(k);
    PrivateMariaDb::instance().restart();
    load_catalogue();
  }
}

TEST_F(Faults, FrozenServerEndsTheRunAfterTheTimeOut) {
  write_old_feeds(dir_.path());
  Environment environment = kOneStatementPerLookup;
  environment["TALMO_DB_TIMEOUT_S"] = "2";
  BackgroundTool tool(dir_.path(), answered(dir_.path(), kAllYes), environment);
  ASSERT_TRUE(tool.wait_for_output(kFeeds[0].third_item, 120)) << tool.out();
  PrivateMariaDb::instance().signal_server(SIGSTOP);
  const int status = tool.wait(60);
  PrivateMariaDb::instance().signal_server(SIGCONT);
  EXPECT_EQ(status, 1) << tool.out();
  expect_old_or_complete(0);
}

TEST_F(Faults, ToolKilledWhileSavingLeavesOldOrCompleteFeedsAndTheNextRunTidiesUp) {
  for (const char* moment : {"Saving File:", "Finished Generate_ARUKERESO...", "Converting to XML",
                             "Saving output file:", "Saving Output File:"}) {
    SCOPED_TRACE(moment);
    write_old_feeds(dir_.path());
    // A snapshot run of this small catalogue is over before its lines are seen; one statement
    // per lookup leaves the time to kill it at each moment.
    BackgroundTool tool(dir_.path(), answered(dir_.path(), kAllYes), kOneStatementPerLookup);
    ASSERT_TRUE(tool.wait_for_output(moment, 120)) << tool.out();
    tool.send(SIGKILL);
    const int status = tool.wait(30);  // near the end the run may finish before the signal lands
    EXPECT_TRUE(status == 128 + SIGKILL || status == 0) << status;
    for (const Feed& feed : kFeeds) {
      const std::string text = read_file(dir_.path() + "/" + feed.file);
      if (text != std::string("yesterday's ") + feed.file + "\n")
        expect_same_text(complete_[feed.file], text);
    }
  }
  write_file(dir_.path() + "/export/sk/.heureka.xml.tmp-Ab12Cd", "half a feed");
  const RunResult next = run_tool(dir_.path(), "n\nn\nn\nn\nn\n\n");
  EXPECT_EQ(next.exit_code, 0);
  EXPECT_EQ(leftovers(dir_.path()), std::vector<std::string>{});
}

TEST_F(Faults, FullOrReadOnlyExportFolderIsReportedAndKeepsTheOldFeed) {
  const std::string folder = dir_.path() + "/export/hu";
  if (::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=16k") != 0)
    GTEST_SKIP() << "needs root and tmpfs to fill or freeze a folder";
  struct Unmount {
    std::string folder;
    ~Unmount() { ::umount2(folder.c_str(), MNT_DETACH); }
  } unmount{folder};
  write_file(folder + "/talmo.xml", "yesterday's export/hu/talmo.xml\n");
  const RunResult full = run_tool(dir_.path(), "y\nn\nn\nn\nn\n\n");
  EXPECT_EQ(full.exit_code, 1);
  EXPECT_NE(full.out.find("\nUnable to create file \"" + folder + "/talmo.xml\"\n" + kClosing),
            std::string::npos)
      << full.out;
  EXPECT_NE(full.err.find("No space left on device"), std::string::npos) << full.err;
  EXPECT_EQ(read_file(folder + "/talmo.xml"), "yesterday's export/hu/talmo.xml\n");

  ASSERT_EQ(::mount("tmpfs", folder.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=16k"), 0);
  const RunResult read_only = run_tool(dir_.path(), "n\ny\nn\nn\nn\n\n");
  EXPECT_EQ(read_only.exit_code, 1);
  EXPECT_NE(read_only.out.find("Unable to create file \"" + folder + "/arukereso.csv\""),
            std::string::npos);
  EXPECT_NE(read_only.err.find("Read-only file system"), std::string::npos) << read_only.err;
  EXPECT_EQ(read_file(folder + "/talmo.xml"), "yesterday's export/hu/talmo.xml\n");
}

TEST_F(Faults, ConfigDatThatIsNoPlainFileIsNeverTouched) {
  const std::string config = dir_.path() + "/config.dat";
  struct Case {
    const char* what;
    void (*make)(const std::string& path);
  };
  const Case cases[] = {
      {"FIFO", [](const std::string& path) { ::mkfifo(path.c_str(), 0600); }},
      {"directory", [](const std::string& path) { fs::create_directory(path); }},
      {"huge file", [](const std::string& path) { write_file(path, std::string(70000, 'x')); }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    fs::remove_all(config);
    c.make(config);
    const auto kind = fs::status(config).type();
    const RunResult run = run_tool(dir_.path(), kAllYes);
    EXPECT_FALSE(run.timed_out);
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_EQ(run.out, "Unable to create file \"" + config + "\"\n");
    EXPECT_EQ(fs::status(config).type(), kind);
  }
  fs::remove_all(config);
}

TEST_F(Faults, ClosedStandardInputAnswersNoToEverything) {
  BackgroundTool tool(dir_.path(), "<&-", {});
  EXPECT_EQ(tool.wait(60), 0);
  EXPECT_EQ(tool.out(),
            "Start TALMO export? (y/n): Start ARUKERESO export? (y/n): Start GRANDO export? (y/n): "
            "Start VATERA export? (y/n): Start HEUREKA.SK export? (y/n): TALMO export skipped\n"
            "ARUKERESO export skipped\nGRANDO export skipped\nVATERA export skipped\n"
            "HEUREKA.SK export skipped\n" +
                kClosing);
}

TEST_F(Faults, SecondRunInTheSameDirectoryStopsAtOnce) {
  write_old_feeds(dir_.path());
  const std::string answers = dir_.path() + "/answers.fifo";
  ASSERT_EQ(::mkfifo(answers.c_str(), 0600), 0);
  // Held open for writing, so the first run waits at its first question, holding the lock.
  const int writer = ::open(answers.c_str(), O_RDWR);
  ASSERT_GE(writer, 0);
  BackgroundTool first(dir_.path(), "<answers.fifo", {});
  ASSERT_TRUE(first.wait_for_output("Start TALMO export? (y/n): ", 60));
  const RunResult second = run_tool(dir_.path(), kAllYes);
  EXPECT_EQ(second.exit_code, 1);
  EXPECT_EQ(second.out, "Another run is working in " + dir_.path() + "\n");
  const std::string all_no = "n\nn\nn\nn\nn\n\n";
  ASSERT_EQ(::write(writer, all_no.data(), all_no.size()), static_cast<ssize_t>(all_no.size()));
  ::close(writer);
  EXPECT_EQ(first.wait(60), 0);
  expect_old_or_complete(0);
}

TEST_F(Faults, VanishedConsoleReaderChangesNeitherFeedsNorExitStatus) {
  place_tool(dir_.path());
  write_file(dir_.path() + "/answers", kAllYes);
  const RunResult run = run_process(
      {"/bin/sh", "-c", "{ ./talmo_software <answers; echo $? >status; } | head -c 10 >/dev/null"},
      dir_.path(), "", {{"MYSQL_TCP_PORT", std::to_string(PrivateMariaDb::instance().port())}},
      300);
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(read_file(dir_.path() + "/status"), "0\n");
  for (const Feed& feed : kFeeds)
    expect_same_text(complete_[feed.file], read_file(dir_.path() + "/" + feed.file));
}

}  // namespace
}  // namespace talmo::testing
