// The report as the shop's staff read it: what is wrong, grouped by kind, then what changed and
// what happened to each feed.
#include <cstdio>
#include <string>

#include "feedcheck/display_text.h"
#include "feedcheck/report.h"

namespace talmo::feedcheck {
namespace {

const std::string kIndent = "  ";

std::string plural(std::size_t count, const std::string& one, const std::string& more) {
  return std::to_string(count) + " " + (count == 1 ? one : more);
}

std::string more_line(std::size_t more, const std::string& indent) {
  return indent + "...and " + std::to_string(more) + " more (--all lists every one)\n";
}

std::string item_name(const Problem& problem) {
  if (problem.key.empty())
    return "(no key, line " + std::to_string(problem.line) + ")";
  return visible(problem.key);
}

std::string problem_line(const Problem& problem) {
  const Finding& finding = problem.finding;
  std::string line = kIndent + kIndent + problem.feed + "  " + item_name(problem) + "  " +
                     finding.field + ": " + finding.what;
  if (finding.text)
    line += ": \"" + shown(*finding.text) + "\"";
  return line + "\n";
}

// One section per severity: every kind with problems, its first ones listed in full.
std::string problem_section(const RunReport& report, Severity severity, const std::string& title,
                            const std::string& why) {
  std::string body;
  for (std::size_t index = 0; index < kProblemKindCount; ++index) {
    const auto kind = static_cast<ProblemKind>(index);
    const std::size_t total = report.problems.total(kind);
    if (kind_severity(kind) != severity || total == 0)
      continue;
    body += kIndent + kind_title(kind) + ": " + std::to_string(total) + "\n";
    const std::vector<Problem>& listed = report.problems.listed(kind);
    for (const Problem& problem : listed)
      body += problem_line(problem);
    if (listed.size() < total)
      body += more_line(total - listed.size(), kIndent + kIndent);
  }
  if (body.empty())
    return title + ": none\n";
  return title + " (" + why + ")\n" + body;
}

std::string file_problem_section(const RunReport& report) {
  std::string body;
  for (const FeedReport& feed : report.feeds) {
    if (feed.file_problem) {
      body += kIndent + feed.kind->name + " (" + feed.kind->file +
              "): " + kind_title(feed.file_problem->kind) + ": " +
              visible(feed.file_problem->message) + "\n";
    }
  }
  if (body.empty())
    return "Whole-file problems: none\n";
  return "Whole-file problems (the marketplace rejects the file)\n" + body;
}

std::string unread_section(const RunReport& report) {
  std::string body;
  for (const FeedReport& feed : report.feeds) {
    if (feed.state == FeedState::Missing)
      body += kIndent + feed.kind->name + " (" + feed.kind->file + "): missing\n";
    else if (feed.state == FeedState::Unreadable)
      body += kIndent + feed.kind->name + " (" + feed.kind->file +
              "): cannot be read: " + feed.read_problem + "\n";
  }
  return body.empty() ? "" : "Feeds not read\n" + body + "\n";
}

std::string percent_text(double percent) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%+.1f%%", percent);
  return buffer;
}

template <typename T, typename Format>
std::string listed_changes(const std::vector<T>& entries, bool all, Format format) {
  constexpr std::size_t kListed = 20;
  std::string text;
  const std::size_t shown_count = all ? entries.size() : std::min(entries.size(), kListed);
  for (std::size_t i = 0; i < shown_count; ++i)
    text += kIndent + kIndent + format(entries[i]) + "\n";
  if (shown_count < entries.size())
    text += more_line(entries.size() - shown_count, kIndent + kIndent);
  return text;
}

std::string changes_of(const FeedReport& feed, const RunReport& report) {
  const std::string head = kIndent + feed.kind->name + ": ";
  if (!feed.changes)
    return head + "not compared: " + feed.not_compared + "\n";
  const FeedChanges& changes = *feed.changes;
  if (changes.appeared.empty() && changes.disappeared.empty() && changes.price_moves.empty())
    return head + "no changes\n";
  char threshold[32];
  std::snprintf(threshold, sizeof threshold, "%g%%", report.price_change);
  std::string text = head + std::to_string(changes.appeared.size()) + " appeared, " +
                     std::to_string(changes.disappeared.size()) + " disappeared, " +
                     plural(changes.price_moves.size(), "price", "prices") +
                     " moved by more than " + threshold + "\n";
  text += listed_changes(changes.appeared, report.all,
                         [](const std::string& key) { return "appeared     " + visible(key); });
  text += listed_changes(changes.disappeared, report.all,
                         [](const std::string& key) { return "disappeared  " + visible(key); });
  text += listed_changes(changes.price_moves, report.all, [](const PriceMove& move) {
    return "price moved  " + visible(move.key) + ": " + visible(move.old_price) + " -> " +
           visible(move.new_price) + " (" + percent_text(move.percent) + ")";
  });
  return text;
}

std::string changes_section(const RunReport& report) {
  if (!report.compared_dir)
    return "";
  std::string text = "\nChanges since the previous run\n";
  for (const FeedReport& feed : report.feeds) {
    if (feed.state == FeedState::Checked)
      text += changes_of(feed, report);
  }
  return text;
}

std::string verdict_text(const FeedReport& feed, bool publishing) {
  const std::string stays = publishing ? "; the published copy stays" : "";
  switch (feed.verdict) {
    case Verdict::Publishable:
      return "can be published";
    case Verdict::NotPublishable:
      return "cannot be published: " + feed.verdict_reason;
    case Verdict::Published:
      return "published";
    case Verdict::HeldBack:
      return "held back: " + feed.verdict_reason + stays;
    case Verdict::NotRead:
      break;
  }
  return (feed.state == FeedState::Missing ? "missing" : "cannot be read") + stays;
}

std::string counts_text(const FeedReport& feed, Severity severity) {
  std::string text;
  for (std::size_t index = 0; index < kProblemKindCount; ++index) {
    const auto kind = static_cast<ProblemKind>(index);
    if (feed.counts[index] == 0 || kind_severity(kind) != severity)
      continue;
    text +=
        (text.empty() ? "" : ", ") + std::to_string(feed.counts[index]) + " " + kind_title(kind);
  }
  return text;
}

std::string summary_section(const RunReport& report) {
  std::string text = "\nSummary\n";
  for (const FeedReport& feed : report.feeds) {
    text += kIndent + feed.kind->name + " (" + feed.kind->file + "): ";
    if (feed.state != FeedState::Checked) {
      text += verdict_text(feed, report.publish_dir.has_value()) + "\n";
      continue;
    }
    text += (stops_reading(feed.file_problem) ? "read up to its problem"
                                              : plural(feed.items, "item", "items")) +
            ", " + verdict_text(feed, report.publish_dir.has_value()) + "\n";
    std::string problems = feed.file_problem ? kind_title(feed.file_problem->kind) : "";
    const std::string items = counts_text(feed, Severity::Item);
    problems += (problems.empty() || items.empty() ? "" : ", ") + items;
    const std::string warnings = counts_text(feed, Severity::Warning);
    text += kIndent + kIndent + (problems.empty() ? "no problems" : problems) +
            (warnings.empty() ? "" : "; warnings: " + warnings) + "\n";
  }
  return text;
}

}  // namespace

std::string text_report(const RunReport& report) {
  std::string text = "talmo_feedcheck " + report.version + ", export directory " +
                     visible(report.export_dir) + "\n";
  if (report.compared_dir)
    text += "Compared with " + visible(*report.compared_dir) + "\n";
  if (report.publish_dir)
    text += "Publishing into " + visible(*report.publish_dir) + "\n";
  text += "\n" + unread_section(report);
  text += file_problem_section(report) + "\n";
  text += problem_section(report, Severity::Item, "Item problems",
                          "the marketplace drops or hides the item") +
          "\n";
  text += problem_section(report, Severity::Warning, "Warnings", "worth a look");
  text += changes_section(report);
  text += summary_section(report);
  text += "\nExit status " + std::to_string(report.exit_status) + ": " +
          exit_status_meaning(report.exit_status) + "\n";
  return text;
}

}  // namespace talmo::feedcheck
