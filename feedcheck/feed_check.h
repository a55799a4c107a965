#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/file_reader.h"
#include "feedcheck/feed_kinds.h"
#include "feedcheck/problems.h"

namespace talmo::feedcheck {

// An item as the comparison with another run needs it.
struct ItemEntry {
  std::string key;
  std::string price;
};
using ItemList = std::vector<ItemEntry>;

// Receives each item problem and warning as it is found, in file order.
using ProblemHandler = std::function<void(const Problem& problem)>;

// What reading one feed file found.
struct FeedCheck {
  std::size_t items = 0;
  std::optional<FileProblem> file_problem;
  std::array<std::size_t, kProblemKindCount> counts{};  // item problems and warnings by kind
  ItemList item_list;                                   // every item, in file order
};

// Reads the feed `kind` from `file` and checks every item: the file's own problem (not
// well-formed, records that cannot be split, a wrong header, no items), the feed's item rules and
// keys used twice. Raises FileReadError when the file cannot be read.
FeedCheck check_feed(const FeedKind& kind, FileReader& file, const ProblemHandler& on_problem);

}  // namespace talmo::feedcheck
