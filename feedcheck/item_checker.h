#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "feedcheck/feed_item.h"
#include "feedcheck/feed_kinds.h"
#include "feedcheck/problems.h"

namespace talmo::feedcheck {

// What the rest of the run needs of a checked item: the key that names it and the price that is
// compared with the previous run.
struct CheckedItem {
  std::string key;
  std::string price;
};

// The rules of one feed, applied item by item. A checker may remember earlier items (to find
// values that must be unique), so one checker reads one file.
class ItemChecker {
 public:
  virtual ~ItemChecker() = default;

  // Checks one item, adding what is wrong with it to `findings`.
  virtual CheckedItem check(const FeedItem& item, std::vector<Finding>& findings) = 0;

  // For a CSV feed with a header line: what is wrong with it (the first record), if anything.
  virtual std::optional<FileProblem> check_header(const FeedItem& header);
};

// The checker of the feed `kind`.
std::unique_ptr<ItemChecker> make_item_checker(const FeedKind& kind);

std::unique_ptr<ItemChecker> make_talmo_checker();
std::unique_ptr<ItemChecker> make_arukereso_checker();
std::unique_ptr<ItemChecker> make_grando_checker();
std::unique_ptr<ItemChecker> make_vatera_checker();
std::unique_ptr<ItemChecker> make_heureka_checker();

}  // namespace talmo::feedcheck
