#include "feedcheck/options.h"

#include <gtest/gtest.h>

#include "feedcheck/report.h"

namespace talmo::feedcheck {
namespace {

std::string feed_names(const Options& options) {
  std::string names;
  for (const FeedKind* kind : options.feeds)
    names += (names.empty() ? "" : ",") + std::string(kind->name);
  return names;
}

TEST(Options, ReadsEveryOptionInBothForms) {
  const Command command = parse_command(
      {"/srv/export", "--feeds", "heureka, talmo", "--previous=/srv/old", "--price-change", "12.5",
       "--publish", "/var/www/feeds", "--accept-shrink", "--all", "--json"},
      "/opt/talmo/export/");
  ASSERT_EQ(command.action, Action::Check);
  const Options& options = command.options;
  EXPECT_EQ(options.export_dir, "/srv/export/");
  EXPECT_EQ(feed_names(options), "talmo,heureka");
  EXPECT_EQ(options.previous_dir, "/srv/old/");
  EXPECT_EQ(options.price_change, 12.5);
  EXPECT_EQ(options.publish_dir, "/var/www/feeds/");
  EXPECT_TRUE(options.accept_shrink && options.all && options.json);
}

TEST(Options, DefaultsCheckEveryFeedBesideTheProgram) {
  const Command command = parse_command({}, "/opt/talmo/export/");
  ASSERT_EQ(command.action, Action::Check);
  EXPECT_EQ(command.options.export_dir, "/opt/talmo/export/");
  EXPECT_EQ(feed_names(command.options), "talmo,arukereso,grando,vatera,heureka");
  EXPECT_EQ(command.options.price_change, 30);
  EXPECT_FALSE(command.options.previous_dir || command.options.publish_dir);
  EXPECT_FALSE(command.options.accept_shrink || command.options.all || command.options.json);
}

TEST(Options, ActionsAndUsageErrors) {
  const struct {
    StringList arguments;
    Action action;
    const char* error;
  } cases[] = {
      {{"--help"}, Action::Help, ""},
      {{"--version", "--help"}, Action::Help, ""},
      {{"--version"}, Action::Version, ""},
      {{"--", "--odd-folder"}, Action::Check, ""},
      {{"--verbose"},
       Action::UsageError,
       "talmo_feedcheck: unknown option \"--verbose\"; --help lists the options"},
      {{"--json=yes"},
       Action::UsageError,
       "talmo_feedcheck: unknown option \"--json=yes\"; --help lists the options"},
      {{"--feeds"}, Action::UsageError, "talmo_feedcheck: --feeds needs a value"},
      {{"--feeds="}, Action::UsageError, "talmo_feedcheck: --feeds needs a value"},
      {{"--feeds", "talmo,"},
       Action::UsageError,
       "talmo_feedcheck: unknown feed \"\" in --feeds (talmo, arukereso, grando, vatera, heureka)"},
      {{"--price-change", "-5"},
       Action::UsageError,
       "talmo_feedcheck: --price-change takes a percentage such as 30, not \"-5\""},
      {{"--price-change", "30%"},
       Action::UsageError,
       "talmo_feedcheck: --price-change takes a percentage such as 30, not \"30%\""},
      {{"a", "b"},
       Action::UsageError,
       "talmo_feedcheck: one export directory at most; \"b\" is a second"},
  };
  for (const auto& c : cases) {
    const Command command = parse_command(c.arguments, "/x/");
    EXPECT_EQ(command.action, c.action) << c.arguments.front();
    EXPECT_EQ(command.error, c.error) << c.arguments.front();
  }
}

TEST(ExitStatus, OneRowPerSituation) {
  const auto feed = [](FeedState state, bool file_problem, ProblemKind counted, Verdict verdict) {
    FeedReport report;
    report.state = state;
    if (file_problem)
      report.file_problem = FileProblem{ProblemKind::NoItems, "none"};
    report.counts[static_cast<std::size_t>(counted)] = 1;
    report.verdict = verdict;
    return report;
  };
  const FeedReport clean =
      feed(FeedState::Checked, false, ProblemKind::EmptyParameter, Verdict::Published);
  const FeedReport item_problem =
      feed(FeedState::Checked, false, ProblemKind::DuplicateKey, Verdict::Published);
  const FeedReport broken =
      feed(FeedState::Checked, true, ProblemKind::EmptyParameter, Verdict::HeldBack);
  const FeedReport shrunk =
      feed(FeedState::Checked, false, ProblemKind::EmptyParameter, Verdict::HeldBack);
  const FeedReport missing =
      feed(FeedState::Missing, false, ProblemKind::NoItems, Verdict::NotRead);
  const FeedReport unreadable =
      feed(FeedState::Unreadable, false, ProblemKind::NoItems, Verdict::NotRead);
  const struct {
    std::vector<FeedReport> feeds;
    int status;
  } cases[] = {
      {{clean, clean}, 0},  {{clean, item_problem}, 1}, {{item_problem, broken}, 3},
      {{shrunk, clean}, 3}, {{broken, missing}, 2},     {{unreadable}, 2},
  };
  for (std::size_t i = 0; i < std::size(cases); ++i)
    EXPECT_EQ(exit_status_of(cases[i].feeds), cases[i].status) << "row " << i;
}

}  // namespace
}  // namespace talmo::feedcheck
