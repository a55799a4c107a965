#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "feedcheck/comparison.h"
#include "feedcheck/feed_check.h"
#include "feedcheck/feed_kinds.h"
#include "feedcheck/problems.h"

namespace talmo::feedcheck {

// Per problem kind, the problems the report lists in full and how many there were in all.
class ProblemCollector {
 public:
  // Keeps the first `limit` problems of each kind; 0 keeps every one.
  explicit ProblemCollector(std::size_t limit) : limit_(limit) {}

  void add(const Problem& problem);
  const std::vector<Problem>& listed(ProblemKind kind) const;
  std::size_t total(ProblemKind kind) const;

 private:
  std::size_t limit_;
  std::array<std::vector<Problem>, kProblemKindCount> listed_;
  std::array<std::size_t, kProblemKindCount> totals_{};
};

enum class FeedState { Checked, Missing, Unreadable };

// What happens to the feed: without --publish whether it could be published, with it what was done.
enum class Verdict { Publishable, NotPublishable, Published, HeldBack, NotRead };

// Everything the report says about one feed.
struct FeedReport {
  const FeedKind* kind = nullptr;
  FeedState state = FeedState::Checked;
  std::string read_problem;  // why a feed that is not Checked could not be read
  std::size_t items = 0;
  std::optional<FileProblem> file_problem;
  std::array<std::size_t, kProblemKindCount> counts{};
  std::optional<FeedChanges> changes;  // when it was compared with a previous run
  std::string not_compared;            // why not, when a comparison was asked for
  Verdict verdict = Verdict::NotRead;
  std::string verdict_reason;  // why a feed is held back or not publishable
};

// The whole run as the report tells it.
struct RunReport {
  std::string version;
  std::string export_dir;
  std::optional<std::string> compared_dir;  // --previous, or the publish directory
  std::optional<std::string> publish_dir;
  double price_change = 30;
  bool all = false;
  std::vector<FeedReport> feeds;
  ProblemCollector problems{20};
  int exit_status = 0;
};

// 2 when a feed is missing or unreadable, else 3 when one is held back or has a whole-file
// problem, else 1 when an item has a problem (warnings do not count), else 0.
int exit_status_of(const std::vector<FeedReport>& feeds);

// What an exit status means, in one sentence.
std::string exit_status_meaning(int status);

// The report as text for the shop's staff, and as one JSON document for monitoring.
std::string text_report(const RunReport& report);
std::string json_report(const RunReport& report);

}  // namespace talmo::feedcheck
