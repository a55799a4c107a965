// The checker run as the shop runs it, over hand-made feed sets: whole reports, usage errors and
// exit statuses, and a check that writes nothing.
#include <sys/stat.h>

#include <filesystem>
#include <map>

#include <gtest/gtest.h>

#include "tests/feedcheck/feedcheck_support.h"

namespace talmo::testing {
namespace {

// Each feed set under tests/feedcheck/feeds/ plants one case of every rule it is named for (an
// item rule per item, a whole-file rule per file). The reports under tests/feedcheck/expected/
// were captured from the checker once, then read line by line against the feed checker's rules
// in the README and the manual page, by the engineer who made the sets and again by a second one
// who did not look at the checker's code: kind, item key, field, what and text of every problem,
// the twenty listed per kind, the price moves against the previous run's price, the summary and
// the exit status.
TEST(FeedcheckReport, WholeReportsOfHandMadeFeeds) {
  const std::string previous = feeds_path("previous");
  const struct {
    const char* feeds;
    std::vector<std::string> options;
    const char* expected;
    int exit_status;
  } cases[] = {
      {"good", {}, "good.txt", 0},
      {"good", {"--json"}, "good.json", 0},
      {"item_problems", {}, "item_problems.txt", 1},
      {"item_problems", {"--json", "--all"}, "item_problems.json", 1},
      {"file_problems", {}, "file_problems.txt", 3},
      {"file_problems", {"--json"}, "file_problems.json", 3},
      {"more_file_problems", {}, "more_file_problems.txt", 3},
      {"stray_quotes", {"--feeds", "arukereso, talmo"}, "stray_quotes.txt", 3},
      {"quote_in_field", {}, "quote_in_field.txt", 2},
      {"good", {"--previous", previous}, "previous.txt", 0},
      {"good", {"--previous=" + previous, "--price-change", "35.8", "--json"}, "previous.json", 0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.expected);
    std::vector<std::string> args = {feeds_path(c.feeds)};
    args.insert(args.end(), c.options.begin(), c.options.end());
    const RunResult result = run_feedcheck(args);
    EXPECT_EQ(result.exit_code, c.exit_status);
    EXPECT_EQ(result.err, "");
    expect_same_text(expected_report(c.expected, feeds_path(c.feeds)), result.out);
  }
}

TEST(FeedcheckCommand, UsageErrorsAndExitStatuses) {
  TempDir no_vatera;
  copy_feeds("good", no_vatera.path());
  std::filesystem::remove(no_vatera.path() + "/hu/vatera.csv");
  const std::string good = feeds_path("good");
  const std::string me = "talmo_feedcheck: ";
  const struct {
    std::vector<std::string> args;
    int exit_status;
    std::string out_start;
    std::string err;
  } cases[] = {
      {{"--help"}, 0, "Usage: talmo_feedcheck [EXPORT_DIR] [--feeds LIST] [--previous DIR]", ""},
      {{"--version", "--help"}, 0, "Usage: ", ""},
      {{"--version"}, 0, std::string("talmo_feedcheck ") + TALMO_EXPECTED_VERSION + "\n", ""},
      {{no_vatera.path()}, 2, "", ""},
      {{no_vatera.path(), "--feeds", "talmo,heureka"}, 0, "", ""},
      {{feeds_path("item_problems"), "--feeds=grando,grando"}, 1, "", ""},
      {{good, "-h"}, 2, "", me + "unknown option \"-h\"; --help lists the options\n"},
      {{good, "--json=yes"},
       2,
       "",
       me + "unknown option \"--json=yes\"; --help lists the options\n"},
      {{good, "--feeds"}, 2, "", me + "--feeds needs a value\n"},
      {{good, "--feeds="}, 2, "", me + "--feeds needs a value\n"},
      {{good, "--feeds", "talmo,"},
       2,
       "",
       me + "unknown feed \"\" in --feeds (talmo, arukereso, grando, vatera, heureka)\n"},
      {{good, "--price-change", "30%"},
       2,
       "",
       me + "--price-change takes a percentage such as 30, not \"30%\"\n"},
      {{good, "--price-change", "-5"},
       2,
       "",
       me + "--price-change takes a percentage such as 30, not \"-5\"\n"},
      {{good, "b"}, 2, "", me + "one export directory at most; \"b\" is a second\n"},
      {{good + "/x"}, 2, "", me + "the export directory \"" + good + "/x/\" is not a directory\n"},
      {{good, "--previous", good + "/x"},
       2,
       "",
       me + "--previous \"" + good + "/x/\" is not a directory\n"},
      {{good, "--publish", good + "/"},
       2,
       "",
       me + "--publish names the export directory itself\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.args.back());
    const RunResult result = run_feedcheck(c.args);
    EXPECT_EQ(result.exit_code, c.exit_status);
    EXPECT_EQ(result.out.substr(0, c.out_start.size()), c.out_start);
    EXPECT_EQ(result.err, c.err);
  }
}

TEST(FeedcheckCommand, APipeWhereAFeedBelongsIsReportedNotWaitedFor) {
  TempDir dir;
  copy_feeds("good", dir.path());
  std::filesystem::remove(dir.path() + "/hu/grando.xml");
  ASSERT_EQ(::mkfifo((dir.path() + "/hu/grando.xml").c_str(), 0600), 0);
  const RunResult result = run_feedcheck({dir.path()});
  EXPECT_EQ(result.exit_code, 2);
  EXPECT_NE(result.out.find("  grando (hu/grando.xml): cannot be read: Not a regular file\n"),
            std::string::npos)
      << result.out;
}

TEST(FeedcheckCommand, WithoutPublishNothingIsWritten) {
  TempDir dir;
  copy_feeds("item_problems", dir.path() + "/export");
  copy_feeds("previous", dir.path() + "/previous");
  const auto snapshot = [&] {
    std::map<std::string, std::string> entries;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(dir.path())) {
      struct stat info {};
      ::lstat(entry.path().c_str(), &info);
      entries[entry.path()] = std::to_string(info.st_size) + " " + std::to_string(info.st_mode) +
                              " " + std::to_string(info.st_mtim.tv_sec) + "." +
                              std::to_string(info.st_mtim.tv_nsec);
    }
    return entries;
  };
  const auto before = snapshot();
  EXPECT_EQ(
      run_feedcheck({dir.path() + "/export", "--previous", dir.path() + "/previous"}).exit_code, 1);
  EXPECT_EQ(snapshot(), before);
}

TEST(FeedcheckCommand, ExportDirectoryDefaultsToExportBesideTheProgram) {
  TempDir dir;
  std::filesystem::copy_file(TALMO_FEEDCHECK, dir.path() + "/talmo_feedcheck");
  std::filesystem::permissions(dir.path() + "/talmo_feedcheck", std::filesystem::perms::owner_all);
  copy_feeds("good", dir.path() + "/export");
  const RunResult result = run_process({dir.path() + "/talmo_feedcheck"}, "/", "", {}, 120);
  EXPECT_EQ(result.exit_code, 0);
  expect_same_text(expected_report("good.txt", dir.path() + "/export"), result.out);
}

}  // namespace
}  // namespace talmo::testing
