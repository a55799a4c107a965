#include "feedcheck/run.h"

#include "core/console.h"
#include "core/directories.h"
#include "core/file_reader.h"
#include "core/system.h"
#include "feedcheck/options.h"
#include "feedcheck/publish_gate.h"
#include "feedcheck/report.h"
#include "project_version.h"

namespace talmo::feedcheck {
namespace {

// A feed's copy from another run (the previous one, or the published one), read whole.
struct OtherCopy {
  bool usable = false;
  std::string why_not;  // when it is not usable
  ItemList items;
};

OtherCopy read_other_copy(const FeedKind& kind, const std::string& dir, const std::string& what) {
  FileReader file(dir + kind.file);
  if (!file.is_open()) {
    return {false,
            file.is_missing() ? "no " + what + " copy"
                              : "the " + what + " copy cannot be read: " + file.problem(),
            {}};
  }
  try {
    FeedCheck check = check_feed(kind, file, [](const Problem&) {});
    if (check.file_problem)
      return {false, "the " + what + " copy has a whole-file problem", {}};
    return {true, "", std::move(check.item_list)};
  } catch (const FileReadError& error) {
    return {false, error.what(), {}};
  }
}

class FeedRun {
 public:
  FeedRun(const Options& options, ProblemCollector& problems)
      : options_(options), problems_(problems) {}

  FeedReport run(const FeedKind& kind) {
    FeedReport feed;
    feed.kind = &kind;
    FileReader file(options_.export_dir + kind.file);
    if (!file.is_open()) {
      feed.state = file.is_missing() ? FeedState::Missing : FeedState::Unreadable;
      feed.read_problem = file.problem();
      return feed;
    }
    const std::optional<std::string> compared_dir =
        options_.previous_dir ? options_.previous_dir : options_.publish_dir;
    std::optional<OtherCopy> previous;
    if (compared_dir)
      previous =
          read_other_copy(kind, *compared_dir, options_.previous_dir ? "previous" : "published");
    FeedCheck check;
    try {
      check = check_feed(kind, file, [this](const Problem& problem) { problems_.add(problem); });
    } catch (const FileReadError& error) {
      feed.state = FeedState::Unreadable;
      feed.read_problem = error.what();
      return feed;
    }
    feed.items = check.items;
    feed.file_problem = check.file_problem;
    feed.counts = check.counts;
    if (previous)
      compare(feed, *previous, check.item_list);
    decide(feed, kind, file, previous);
    return feed;
  }

 private:
  void compare(FeedReport& feed, const OtherCopy& previous, const ItemList& items) const {
    if (feed.file_problem)
      feed.not_compared = "the feed has a whole-file problem";
    else if (!previous.usable)
      feed.not_compared = previous.why_not;
    else
      feed.changes = compare_items(previous.items, items, options_.price_change);
  }

  void decide(FeedReport& feed, const FeedKind& kind, FileReader& file,
              const std::optional<OtherCopy>& previous) const {
    if (!options_.publish_dir) {
      feed.verdict = feed.file_problem ? Verdict::NotPublishable : Verdict::Publishable;
      if (feed.file_problem)
        feed.verdict_reason = "the feed has a whole-file problem";
      return;
    }
    // The published copy was read as the previous run unless --previous named another.
    std::optional<std::size_t> published_items;
    if (options_.previous_dir || !previous) {
      const OtherCopy published = read_other_copy(kind, *options_.publish_dir, "published");
      if (published.usable)
        published_items = published.items.size();
    } else if (previous->usable) {
      published_items = previous->items.size();
    }
    std::optional<std::string> reason =
        hold_back_reason(feed.file_problem, feed.items, published_items, options_.accept_shrink);
    if (!reason)
      reason = publish_feed(file, *options_.publish_dir, kind);
    feed.verdict = reason ? Verdict::HeldBack : Verdict::Published;
    feed.verdict_reason = reason.value_or("");
  }

  const Options& options_;
  ProblemCollector& problems_;
};

// The directory an option names must be there; the one line that says otherwise, or "".
std::string directory_problem(const std::string& what, const std::string& dir) {
  return is_directory(dir) ? ""
                           : "talmo_feedcheck: " + what + " \"" + dir + "\" is not a directory";
}

std::string directories_problem(const Options& options) {
  std::string problem = directory_problem("the export directory", options.export_dir);
  if (problem.empty() && options.previous_dir)
    problem = directory_problem("--previous", *options.previous_dir);
  if (problem.empty() && options.publish_dir) {
    problem = directory_problem("--publish", *options.publish_dir);
    if (problem.empty() && same_file(*options.publish_dir, options.export_dir))
      problem = "talmo_feedcheck: --publish names the export directory itself";
  }
  return problem;
}

int check(const Options& options) {
  if (const std::string problem = directories_problem(options); !problem.empty()) {
    write_error_line(problem);
    return 2;
  }
  RunReport report;
  report.version = kProjectVersion;
  report.export_dir = options.export_dir;
  report.compared_dir = options.previous_dir ? options.previous_dir : options.publish_dir;
  report.publish_dir = options.publish_dir;
  report.price_change = options.price_change;
  report.all = options.all;
  report.problems = ProblemCollector(options.all ? 0 : 20);
  FeedRun run(options, report.problems);
  for (const FeedKind* kind : options.feeds)
    report.feeds.push_back(run.run(*kind));
  report.exit_status = exit_status_of(report.feeds);
  write_text(options.json ? json_report(report) : text_report(report));
  return report.exit_status;
}

}  // namespace

int run_feedcheck(int argc, char** argv) {
  const StringList arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  const Command command = parse_command(arguments, executable_directory() + "export/");
  switch (command.action) {
    case Action::Help:
      write_text(usage_text());
      return 0;
    case Action::Version:
      write_line(std::string("talmo_feedcheck ") + kProjectVersion);
      return 0;
    case Action::UsageError:
      write_error_line(command.error);
      return 2;
    case Action::Check:
      break;
  }
  return check(command.options);
}

}  // namespace talmo::feedcheck
