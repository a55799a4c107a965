// The checker run as the shop runs it, over hand-made feeds: whole reports, exit statuses, the
// limit of twenty listed problems, and a check that writes nothing.
#include <sys/stat.h>

#include <filesystem>
#include <map>
#include <optional>

#include <gtest/gtest.h>

#include "tests/feedcheck/feedcheck_support.h"

namespace talmo::testing {
namespace {

TEST(FeedcheckReport, WholeReportsOfHandMadeFeeds) {
  const struct {
    const char* feeds;
    std::vector<std::string> options;
    const char* expected;
    int exit_status;
  } cases[] = {
      {"good", {}, "good.txt", 0},
      {"good", {"--json"}, "good.json", 0},
      {"item_problems", {}, "item_problems.txt", 1},
      {"file_problems", {}, "file_problems.txt", 3},
      {"good", {"--previous", feeds_path("previous")}, "previous.txt", 0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.expected);
    std::vector<std::string> args = {feeds_path(c.feeds)};
    args.insert(args.end(), c.options.begin(), c.options.end());
    expect_report(args, c.expected,
                  {{"dir", feeds_path(c.feeds)}, {"previous", feeds_path("previous")}},
                  c.exit_status);
  }
}

TEST(FeedcheckReport, JsonIsOneValidDocumentEvenWithEveryProblemListed) {
  for (const char* feeds : {"item_problems", "file_problems"}) {
    SCOPED_TRACE(feeds);
    const RunResult report = run_feedcheck({feeds_path(feeds), "--json", "--all"});
    const RunResult parsed =
        run_command({"python3", "-c", "import json,sys; json.load(sys.stdin)"}, report.out);
    EXPECT_EQ(parsed.exit_code, 0) << parsed.err;
  }
}

// A feed directory of `items` TALMO items whose price could not be computed, nothing else.
void write_uncomputed_talmo(const std::string& dir, int items) {
  std::string feed = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<termeklista>\n";
  for (int i = 1; i <= items; ++i) {
    feed += "\t<termek>\n\t\t<ar>90</ar>\n\t\t<termeklink><![CDATA[https://www.kelvor.hu/t/" +
            std::to_string(i) + "/]]></termeklink>\n\t</termek>\n";
  }
  write_file(dir + "/hu/talmo.xml", feed + "</termeklista>\n");
}

TEST(FeedcheckReport, ListsTwentyOfAKindAndCountsTheRestUnlessAll) {
  TempDir dir;
  write_uncomputed_talmo(dir.path(), 25);
  const std::string listed_line = "    talmo  https://www.kelvor.hu/t/";
  const struct {
    std::vector<std::string> options;
    std::size_t listed;
    bool more_line;
  } cases[] = {{{}, 20, true}, {{"--all"}, 25, false}};
  for (const auto& c : cases) {
    std::vector<std::string> args = {dir.path(), "--feeds", "talmo"};
    args.insert(args.end(), c.options.begin(), c.options.end());
    const RunResult result = run_feedcheck(args);
    EXPECT_EQ(result.exit_code, 1);
    std::size_t listed = 0;
    for (std::size_t at = result.out.find(listed_line); at != std::string::npos;
         at = result.out.find(listed_line, at + 1))
      ++listed;
    EXPECT_EQ(listed, c.listed);
    EXPECT_NE(result.out.find("  price could not be computed: 25\n"), std::string::npos);
    EXPECT_EQ(result.out.find("    ...and 5 more (--all lists every one)\n") != std::string::npos,
              c.more_line);
  }
}

TEST(FeedcheckExitStatus, OneRowPerSituation) {
  TempDir only_talmo;
  copy_feeds("good", only_talmo.path());
  std::filesystem::remove(only_talmo.path() + "/hu/vatera.csv");
  TempDir broken;
  copy_feeds("file_problems", broken.path());
  std::filesystem::remove(broken.path() + "/hu/vatera.csv");
  const std::string good = feeds_path("good");
  const struct {
    const char* situation;
    std::vector<std::string> args;
    int exit_status;
    std::optional<std::string> error;  // the whole standard error, when it matters
  } cases[] = {
      {"clean feeds, warnings allowed", {good}, 0, ""},
      {"a feed named twice", {feeds_path("item_problems"), "--feeds", "talmo,talmo"}, 1, ""},
      {"item problems only", {feeds_path("item_problems"), "--feeds=grando"}, 1, ""},
      {"a feed without items", {feeds_path("file_problems"), "--feeds", "grando"}, 3, ""},
      {"a whole-file problem beside item problems",
       {feeds_path("file_problems") + "/", "--feeds", "talmo,arukereso"},
       3,
       ""},
      {"a missing feed outweighs a whole-file problem", {broken.path()}, 2, ""},
      {"no previous copy is no problem", {good, "--previous", only_talmo.path()}, 0, ""},
      {"a listed feed missing", {only_talmo.path()}, 2, ""},
      {"the missing feed not listed", {only_talmo.path(), "--feeds", "talmo,heureka"}, 0, ""},
      {"an unknown option",
       {good, "--fast"},
       2,
       "talmo_feedcheck: unknown option \"--fast\"; --help lists the options\n"},
      {"a short option",
       {good, "-h"},
       2,
       "talmo_feedcheck: unknown option \"-h\"; --help lists the options\n"},
      {"no export directory",
       {only_talmo.path() + "/nothing"},
       2,
       "talmo_feedcheck: the export directory \"" + only_talmo.path() +
           "/nothing/\" is not a directory\n"},
      {"no previous directory", {good, "--previous", only_talmo.path() + "/old"}, 2, std::nullopt},
      {"publishing onto the export",
       {good, "--publish", good + "/"},
       2,
       "talmo_feedcheck: --publish names the export directory itself\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.situation);
    const RunResult result = run_feedcheck(c.args);
    EXPECT_EQ(result.exit_code, c.exit_status);
    if (c.error) {
      EXPECT_EQ(result.err, *c.error);
    }
  }
}

TEST(FeedcheckCommand, APipeWhereAFeedBelongsIsReportedNotWaitedFor) {
  TempDir dir;
  copy_feeds("good", dir.path());
  std::filesystem::remove(dir.path() + "/hu/grando.xml");
  ASSERT_EQ(::mkfifo((dir.path() + "/hu/grando.xml").c_str(), 0600), 0);
  const RunResult result = run_feedcheck({dir.path()});
  EXPECT_FALSE(result.timed_out);
  EXPECT_EQ(result.exit_code, 2);
  EXPECT_NE(
      result.out.find("Feeds not read\n  grando (hu/grando.xml): cannot be read: Not a regular "
                      "file\n"),
      std::string::npos)
      << result.out;
}

TEST(FeedcheckCommand, HelpAndVersion) {
  const RunResult help = run_feedcheck({"--help"});
  EXPECT_EQ(help.exit_code, 0);
  EXPECT_EQ(
      help.out.rfind("Usage: talmo_feedcheck [EXPORT_DIR] [--feeds LIST] [--previous DIR]", 0), 0u);
  const RunResult version = run_feedcheck({"--version"});
  EXPECT_EQ(version.exit_code, 0);
  EXPECT_EQ(version.out, std::string("talmo_feedcheck ") + TALMO_EXPECTED_VERSION + "\n");
}

// Every file and folder under `dir` with its size, mode and modification time.
std::map<std::string, std::string> snapshot(const std::string& dir) {
  std::map<std::string, std::string> entries;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(dir)) {
    struct stat info {};
    ::lstat(entry.path().c_str(), &info);
    entries[entry.path().string()] =
        std::to_string(info.st_size) + " " + std::to_string(info.st_mode) + " " +
        std::to_string(info.st_mtim.tv_sec) + "." + std::to_string(info.st_mtim.tv_nsec);
  }
  return entries;
}

TEST(FeedcheckCommand, WithoutPublishNothingIsWritten) {
  TempDir dir;
  copy_feeds("item_problems", dir.path() + "/export");
  copy_feeds("previous", dir.path() + "/previous");
  const auto before = snapshot(dir.path());
  const RunResult result =
      run_feedcheck({dir.path() + "/export", "--previous", dir.path() + "/previous", "--all"});
  EXPECT_EQ(result.exit_code, 1);
  EXPECT_EQ(snapshot(dir.path()), before);
}

TEST(FeedcheckCommand, ExportDirectoryDefaultsToExportBesideTheProgram) {
  TempDir dir;
  std::filesystem::copy_file(TALMO_FEEDCHECK, dir.path() + "/talmo_feedcheck");
  std::filesystem::permissions(dir.path() + "/talmo_feedcheck", std::filesystem::perms::owner_all);
  copy_feeds("good", dir.path() + "/export");
  const RunResult result = run_command({dir.path() + "/talmo_feedcheck"}, "", "/");
  EXPECT_EQ(result.exit_code, 0);
  expect_same_text(expected_report("good.txt", {{"dir", dir.path() + "/export"}}), result.out);
}

}  // namespace
}  // namespace talmo::testing
