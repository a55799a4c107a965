// The report as one JSON document, for monitoring: the same content as the text report.
#include <cstdio>
#include <string>

#include "feedcheck/display_text.h"
#include "feedcheck/report.h"

namespace talmo::feedcheck {
namespace {

constexpr std::size_t kListed = 20;

// A JSON string of `text` as the text report shows it (control bytes and bytes that are not
// UTF-8 written as "\n", "\xNN"), so the document is always valid UTF-8.
std::string quoted(const std::string& text) {
  std::string out = "\"";
  for (char c : visible(text)) {
    if (c == '"' || c == '\\')
      out += '\\';
    out += c;
  }
  return out + "\"";
}

std::string quoted_or_null(const std::optional<std::string>& text) {
  return text ? quoted(*text) : "null";
}

std::string number(double value) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%.1f", value);
  return buffer;
}

// A number as short as it goes ("30", "12.5").
std::string shortest(double value) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%g", value);
  return buffer;
}

std::string severity_name(Severity severity) {
  switch (severity) {
    case Severity::File:
      return "file";
    case Severity::Item:
      return "item";
    case Severity::Warning:
      break;
  }
  return "warning";
}

std::string state_name(FeedState state) {
  switch (state) {
    case FeedState::Checked:
      return "checked";
    case FeedState::Missing:
      return "missing";
    case FeedState::Unreadable:
      break;
  }
  return "unreadable";
}

std::string verdict_name(Verdict verdict) {
  switch (verdict) {
    case Verdict::Publishable:
      return "publishable";
    case Verdict::NotPublishable:
      return "not publishable";
    case Verdict::Published:
      return "published";
    case Verdict::HeldBack:
      return "held back";
    case Verdict::NotRead:
      break;
  }
  return "not read";
}

template <typename T, typename Format>
std::string list(const std::vector<T>& entries, bool all, Format format) {
  const std::size_t count = all ? entries.size() : std::min(entries.size(), kListed);
  std::string out = "{\"total\": " + std::to_string(entries.size()) + ", \"listed\": [";
  for (std::size_t i = 0; i < count; ++i)
    out += (i ? ", " : "") + format(entries[i]);
  return out + "]}";
}

std::string counts(const FeedReport& feed, Severity severity) {
  std::string out;
  for (std::size_t index = 0; index < kProblemKindCount; ++index) {
    const auto kind = static_cast<ProblemKind>(index);
    if (feed.counts[index] > 0 && kind_severity(kind) == severity)
      out += (out.empty() ? "" : ", ") + quoted(kind_id(kind)) + ": " +
             std::to_string(feed.counts[index]);
  }
  return "{" + out + "}";
}

std::string changes(const FeedReport& feed, bool all) {
  if (!feed.changes)
    return "null";
  const auto key = [](const std::string& k) { return quoted(k); };
  const auto move = [](const PriceMove& m) {
    return "{\"key\": " + quoted(m.key) + ", \"old\": " + quoted(m.old_price) +
           ", \"new\": " + quoted(m.new_price) + ", \"percent\": " + number(m.percent) + "}";
  };
  return "{\"appeared\": " + list(feed.changes->appeared, all, key) +
         ", \"disappeared\": " + list(feed.changes->disappeared, all, key) +
         ", \"price_moves\": " + list(feed.changes->price_moves, all, move) + "}";
}

std::string feed_object(const FeedReport& feed, const RunReport& report) {
  std::string file_problem = "null";
  if (feed.file_problem) {
    file_problem = "{\"kind\": " + quoted(kind_id(feed.file_problem->kind)) +
                   ", \"message\": " + quoted(feed.file_problem->message) + "}";
  }
  return "    {\"feed\": " + quoted(feed.kind->name) + ", \"file\": " + quoted(feed.kind->file) +
         ", \"state\": " + quoted(state_name(feed.state)) + ", \"read_problem\": " +
         (feed.state == FeedState::Checked ? "null" : quoted(feed.read_problem)) + ", \"items\": " +
         (stops_reading(feed.file_problem) ? "null" : std::to_string(feed.items)) +
         ", \"file_problem\": " + file_problem + ", \"problems\": " + counts(feed, Severity::Item) +
         ", \"warnings\": " + counts(feed, Severity::Warning) +
         ", \"verdict\": " + quoted(verdict_name(feed.verdict)) +
         ", \"verdict_reason\": " + quoted(feed.verdict_reason) +
         ", \"changes\": " + changes(feed, report.all) + ", \"not_compared\": " +
         (feed.changes || !report.compared_dir ? "null" : quoted(feed.not_compared)) + "}";
}

std::string problem_object(const Problem& problem) {
  const Finding& finding = problem.finding;
  return "{\"feed\": " + quoted(problem.feed) + ", \"key\": " + quoted(problem.key) +
         ", \"line\": " + std::to_string(problem.line) + ", \"field\": " + quoted(finding.field) +
         ", \"what\": " + quoted(finding.what) +
         ", \"text\": " + (finding.text ? quoted(shown(*finding.text)) : "null") + "}";
}

std::string kinds_array(const RunReport& report) {
  std::string out;
  for (std::size_t index = 0; index < kProblemKindCount; ++index) {
    const auto kind = static_cast<ProblemKind>(index);
    const std::size_t total = report.problems.total(kind);
    if (total == 0 || kind_severity(kind) == Severity::File)
      continue;
    std::string listed;
    for (const Problem& problem : report.problems.listed(kind))
      listed += (listed.empty() ? "\n      " : ",\n      ") + problem_object(problem);
    out += (out.empty() ? "\n" : ",\n") + std::string("    {\"kind\": ") + quoted(kind_id(kind)) +
           ", \"severity\": " + quoted(severity_name(kind_severity(kind))) +
           ", \"title\": " + quoted(kind_title(kind)) + ", \"total\": " + std::to_string(total) +
           ", \"listed\": [" + listed + "]}";
  }
  return "[" + out + (out.empty() ? "]" : "\n  ]");
}

}  // namespace

std::string json_report(const RunReport& report) {
  std::string feeds;
  for (const FeedReport& feed : report.feeds)
    feeds += (feeds.empty() ? "\n" : ",\n") + feed_object(feed, report);
  return "{\n  \"version\": " + quoted(report.version) +
         ",\n  \"export_dir\": " + quoted(report.export_dir) +
         ",\n  \"compared_with\": " + quoted_or_null(report.compared_dir) +
         ",\n  \"publish_dir\": " + quoted_or_null(report.publish_dir) +
         ",\n  \"price_change_percent\": " + shortest(report.price_change) +
         ",\n  \"exit_status\": " + std::to_string(report.exit_status) +
         ",\n  \"exit_meaning\": " + quoted(exit_status_meaning(report.exit_status)) +
         ",\n  \"feeds\": [" + feeds + "\n  ],\n  \"problems\": " + kinds_array(report) + "\n}\n";
}

}  // namespace talmo::feedcheck
