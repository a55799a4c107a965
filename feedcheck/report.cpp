#include "feedcheck/report.h"

namespace talmo::feedcheck {

void ProblemCollector::add(const Problem& problem) {
  const auto index = static_cast<std::size_t>(problem.finding.kind);
  ++totals_[index];
  if (limit_ == 0 || listed_[index].size() < limit_)
    listed_[index].push_back(problem);
}

const std::vector<Problem>& ProblemCollector::listed(ProblemKind kind) const {
  return listed_[static_cast<std::size_t>(kind)];
}

std::size_t ProblemCollector::total(ProblemKind kind) const {
  return totals_[static_cast<std::size_t>(kind)];
}

int exit_status_of(const std::vector<FeedReport>& feeds) {
  bool held_back = false;
  bool item_problems = false;
  for (const FeedReport& feed : feeds) {
    if (feed.state != FeedState::Checked)
      return 2;
    held_back = held_back || feed.file_problem || feed.verdict == Verdict::HeldBack;
    for (std::size_t kind = 0; kind < kProblemKindCount; ++kind) {
      if (feed.counts[kind] > 0 && kind_severity(static_cast<ProblemKind>(kind)) == Severity::Item)
        item_problems = true;
    }
  }
  if (held_back)
    return 3;
  return item_problems ? 1 : 0;
}

std::string exit_status_meaning(int status) {
  switch (status) {
    case 0:
      return "no problems";
    case 1:
      return "item problems only; every feed can be published";
    case 2:
      return "a feed is missing or cannot be read";
    default:
      return "a feed is held back or has a whole-file problem";
  }
}

}  // namespace talmo::feedcheck
