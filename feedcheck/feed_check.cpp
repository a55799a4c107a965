#include "feedcheck/feed_check.h"

#include <memory>
#include <unordered_map>

#include "feedcheck/item_checker.h"
#include "feedcheck/item_readers.h"

namespace talmo::feedcheck {
namespace {

// Checks items one by one as the reader hands them over.
class FeedChecker {
 public:
  FeedChecker(const FeedKind& kind, const ProblemHandler& on_problem)
      : kind_(kind), on_problem_(on_problem), checker_(make_item_checker(kind)) {}

  void item(const FeedItem& item) {
    if (kind_.format == FeedFormat::QuotedCsv && !header_seen_) {
      header_seen_ = true;
      header_problem_ = checker_->check_header(item);
      return;
    }
    std::vector<Finding> findings;
    CheckedItem checked = checker_->check(item, findings);
    if (!checked.key.empty()) {
      const auto [first, added] = first_lines_.try_emplace(checked.key, item.line);
      if (!added) {
        findings.push_back({ProblemKind::DuplicateKey, kind_.key,
                            "also the key of the item on line " + std::to_string(first->second),
                            checked.key});
      }
    }
    for (Finding& finding : findings) {
      ++result_.counts[static_cast<std::size_t>(finding.kind)];
      on_problem_(Problem{kind_.name, checked.key, item.line, std::move(finding)});
    }
    ++result_.items;
    result_.item_list.push_back({std::move(checked.key), std::move(checked.price)});
  }

  FeedCheck finish(std::optional<FileProblem> read_problem) {
    result_.file_problem = read_problem ? std::move(read_problem) : std::move(header_problem_);
    if (!result_.file_problem && result_.items == 0)
      result_.file_problem = FileProblem{ProblemKind::NoItems, "the feed holds no items"};
    return std::move(result_);
  }

 private:
  const FeedKind& kind_;
  const ProblemHandler& on_problem_;
  std::unique_ptr<ItemChecker> checker_;
  std::unordered_map<std::string, std::size_t> first_lines_;
  bool header_seen_ = false;
  std::optional<FileProblem> header_problem_;
  FeedCheck result_;
};

}  // namespace

FeedCheck check_feed(const FeedKind& kind, FileReader& file, const ProblemHandler& on_problem) {
  FeedChecker checker(kind, on_problem);
  const ItemHandler on_item = [&checker](const FeedItem& item) { checker.item(item); };
  std::optional<FileProblem> problem;
  switch (kind.format) {
    case FeedFormat::Xml:
      problem = read_xml_items(file, kind, on_item);
      break;
    case FeedFormat::QuotedCsv:
      problem = read_quoted_records(file, on_item);
      break;
    case FeedFormat::VateraCsv:
      problem = read_vatera_records(file, on_item);
      break;
  }
  return checker.finish(std::move(problem));
}

}  // namespace talmo::feedcheck
