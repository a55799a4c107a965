// Faults during a nightly run, against the real private server: what the shop must never lose is
// a good feed replaced by a broken one, and what it must always get is an exit status that tells
// a scheduler whether every chosen feed was refreshed.
#include <fcntl.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "tests/support/subprocess.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

namespace fs = std::filesystem;

// The five feeds in export order, with the progress text of their third item.
const std::pair<std::string, std::string> kFeeds[] = {
    {"export/hu/talmo.xml", "(Type: TALMO :: Site: HU) 3 of"},
    {"export/hu/arukereso.csv", "(Type: ARUKERESO :: Site: HU) 3 of"},
    {"export/hu/grando.xml", "(Type: GRANDO :: Site: HU) 3 of"},
    {"export/hu/vatera.csv", "(Type: VATERA :: Site: HU) 3 of"},
    {"export/sk/heureka.xml", "(Type: HEUREKA.SK :: Site: SK) 3 of"}};
const std::string kAllYes = "y\ny\ny\ny\ny\n\n", kAllNo = "n\nn\nn\nn\nn\n\n";
const std::string kClosing = "Software Finished succesfully. Press ENTER to quit";
// Every lookup asks the server, so a fault is met at once and a run is slow enough to be caught
// at each moment (a snapshot run of this small catalogue is over before its lines are seen).
const Environment kOneByOne = {{"TALMO_SNAPSHOT", "off"}};

class Faults : public ::testing::Test {
 protected:
  // The feeds of a healthy run: what a complete feed must look like.
  static void SetUpTestSuite() {
    PrivateMariaDb::instance().load_sample_catalogue("--products 60");
    TempDir dir;
    prepare_run_directory(dir.path());
    ASSERT_EQ(run_tool(dir.path(), kAllYes, {}, kOneByOne).exit_code, 0);
    for (const auto& [file, third_item] : kFeeds)
      complete_[file] = read_file(dir.path() + "/" + file);
  }

  void SetUp() override { prepare_run_directory(dir_); }

  // Yesterday's feeds, and a run started on them in the background with `answers`.
  std::unique_ptr<BackgroundTool> start(const std::string& answers, const Environment& env) {
    for (const auto& [file, third_item] : kFeeds)
      write_file(dir_ + "/" + file, "yesterday's " + file + "\n");
    write_file(dir_ + "/answers.txt", answers);
    return std::make_unique<BackgroundTool>(dir_, "<answers.txt", env);
  }

  // The first `refreshed` feeds are complete and the others yesterday's, nothing in between and
  // no temporary file left; with -1 each may be either, and temporary files may be left.
  void expect_feeds(int refreshed) {
    for (int k = 0; k < 5; ++k) {
      const std::string text = read_file(dir_ + "/" + kFeeds[k].first);
      if (k < refreshed || (refreshed < 0 && text != "yesterday's " + kFeeds[k].first + "\n"))
        expect_same_text(complete_[kFeeds[k].first], text);
      else
        EXPECT_EQ(text, "yesterday's " + kFeeds[k].first + "\n");
    }
    EXPECT_TRUE(refreshed < 0 || leftovers() == 0);
  }

  // Files in the feed folders that are no feed: what a killed run left behind.
  std::size_t leftovers() const {
    std::size_t found = 0;
    for (const char* site : {"/export/hu", "/export/sk"}) {
      for (const auto& entry : fs::directory_iterator(dir_ + site))
        found += entry.path().string().find(".tmp-") != std::string::npos;
    }
    return found;
  }

  static inline std::map<std::string, std::string> complete_;
  TempDir temp_;
  const std::string dir_ = temp_.path();
};

// The server killed during each export or frozen past the time-out in the first, and the tool
// itself killed at each moment it saves a feed.
TEST_F(Faults, MidRunFaultsLeaveOldOrCompleteFeeds) {
  // {moment, signal, sent to the server (else the tool), feeds refreshed (-1: each either)}
  std::vector<std::tuple<std::string, int, bool, int>> cases = {
      {kFeeds[0].second, SIGSTOP, true, 0}};
  for (int k = 0; k < 5; ++k)
    cases.emplace_back(kFeeds[k].second, SIGKILL, true, k);
  for (const char* moment : {"Saving File:", "Finished Generate_ARUKERESO...", "Converting to XML",
                             "Saving output file:", "Saving Output File:"})
    cases.emplace_back(moment, SIGKILL, false, -1);
  PrivateMariaDb& server = PrivateMariaDb::instance();
  for (const auto& [moment, signal, to_server, refreshed] : cases) {
    SCOPED_TRACE(moment + (signal == SIGSTOP ? " frozen" : to_server ? " lost" : " tool"));
    Environment environment = kOneByOne;
    if (signal == SIGSTOP)
      environment["TALMO_DB_TIMEOUT_S"] = "2";
    auto tool = start(kAllYes, environment);
    ASSERT_TRUE(tool->wait_for_output(moment, 120)) << tool->out();
    to_server ? server.signal_server(signal) : tool->send(signal);
    const int status = tool->wait(60);
    server.signal_server(SIGCONT);
    const std::string out = tool->out();
    if (to_server) {
      // The message of the lost connection alone, then the closing message: no lookup's error
      // line and no later export.
      EXPECT_EQ(status, 1);
      ASSERT_TRUE(out.ends_with("\n" + kClosing)) << out;
      const std::string last = out.substr(0, out.size() - kClosing.size() - 1);
      EXPECT_EQ(last.substr(last.rfind('\n') + 1).find("Error in Query"), std::string::npos);
      for (int later = refreshed + 1; later < 5; ++later)
        EXPECT_EQ(out.find(kFeeds[later].second), std::string::npos);
    } else {  // near the end the run may finish before the signal lands
      EXPECT_TRUE(status == 128 + SIGKILL || status == 0) << status;
    }
    expect_feeds(refreshed);
    if (to_server && signal == SIGKILL) {
      server.restart();
      PrivateMariaDb::instance().load_sample_catalogue("--products 60");
    }
  }
  write_file(dir_ + "/export/sk/.heureka.xml.tmp-Ab12Cd", "half a feed");
  EXPECT_EQ(run_tool(dir_, kAllNo).exit_code, 0);
  EXPECT_EQ(leftovers(), 0u);
}

TEST_F(Faults, FullOrReadOnlyExportFolderIsReportedAndKeepsTheOldFeed) {
  const std::string folder = dir_ + "/export/hu";
  if (::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=16k") != 0)
    GTEST_SKIP() << "needs root and tmpfs to fill or freeze a folder";
  const std::shared_ptr<void> unmount(nullptr,
                                      [&](void*) { ::umount2(folder.c_str(), MNT_DETACH); });
  write_file(folder + "/talmo.xml", "yesterday's talmo.xml\n");
  for (const auto& [answers, feed, error] :
       {std::tuple{"y\nn\nn\nn\nn\n\n", "/talmo.xml", "No space left on device"},
        std::tuple{"n\ny\nn\nn\nn\n\n", "/arukereso.csv", "Read-only file system"}}) {
    if (answers[0] == 'n') {  // the second time on a read-only folder
      ASSERT_EQ(::mount("tmpfs", folder.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=16k"), 0);
    }
    const RunResult run = run_tool(dir_, answers);
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_TRUE(run.out.ends_with("\nUnable to create file \"" + folder + feed + "\"\n" + kClosing))
        << run.out;
    EXPECT_NE(run.err.find(error), std::string::npos) << run.err;
    EXPECT_EQ(read_file(folder + "/talmo.xml"), "yesterday's talmo.xml\n");
  }
}

TEST_F(Faults, ConfigDatThatIsNoPlainFileIsNeverTouched) {
  const std::string config = dir_ + "/config.dat";
  for (const std::function<void()>& make : std::vector<std::function<void()>>{
           [&] { ::mkfifo(config.c_str(), 0600); }, [&] { fs::create_directory(config); },
           [&] { write_file(config, std::string(70000, 'x')); }}) {
    fs::remove_all(config);
    make();
    const auto kind = fs::status(config).type();
    const RunResult run = run_tool(dir_, kAllYes);
    EXPECT_FALSE(run.timed_out);
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_EQ(run.out, "Unable to create file \"" + config + "\"\n");
    EXPECT_EQ(fs::status(config).type(), kind);
    EXPECT_EQ(entries_in(dir_), 3u);  // config.dat, export, the executable
  }
}

TEST_F(Faults, SecondRunInTheSameDirectoryStopsAtOnce) {
  // Held open for writing, so the first run waits at its first question, holding the lock.
  ASSERT_EQ(::mkfifo((dir_ + "/answers.fifo").c_str(), 0600), 0);
  const int writer = ::open((dir_ + "/answers.fifo").c_str(), O_RDWR | O_CLOEXEC);
  BackgroundTool first(dir_, "<answers.fifo");
  ASSERT_TRUE(first.wait_for_output("Start TALMO export? (y/n): ", 60));
  const RunResult second = run_tool(dir_, kAllYes);
  EXPECT_EQ(second.exit_code, 1);
  EXPECT_EQ(second.out, "Another run is working in " + dir_ + "\n");
  EXPECT_EQ(::write(writer, kAllNo.data(), kAllNo.size()), static_cast<ssize_t>(kAllNo.size()));
  ::close(writer);
  EXPECT_EQ(first.wait(60), 0);
  EXPECT_FALSE(file_exists(dir_ + "/export/hu/talmo.xml"));
}

TEST_F(Faults, VanishedConsoleReaderChangesNeitherFeedsNorExitStatus) {
  fs::copy_file(TALMO_EXECUTABLE, dir_ + "/talmo_software");
  write_file(dir_ + "/answers", kAllYes);
  const RunResult run = run_process(
      {"/bin/sh", "-c", "{ ./talmo_software <answers; echo $? >status; } | head -c 10 >/dev/null"},
      dir_, "", {{"MYSQL_TCP_PORT", std::to_string(PrivateMariaDb::instance().port())}}, 300);
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(read_file(dir_ + "/status"), "0\n");
  for (const auto& [file, third_item] : kFeeds)
    expect_same_text(complete_[file], read_file(dir_ + "/" + file));
}

}  // namespace
}  // namespace talmo::testing
