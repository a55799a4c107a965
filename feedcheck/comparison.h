#pragma once

#include <string>
#include <vector>

#include "feedcheck/feed_check.h"

namespace talmo::feedcheck {

// A price that moved by more than the allowed share since the previous run.
struct PriceMove {
  std::string key;
  std::string old_price;
  std::string new_price;
  double percent = 0;  // (new - old) / old * 100
};

// What changed in one feed since the previous run, each list in file order.
struct FeedChanges {
  std::vector<std::string> appeared;     // keys only in the new feed
  std::vector<std::string> disappeared;  // keys only in the previous feed
  std::vector<PriceMove> price_moves;
};

// Compares the items of a feed's previous and current run by key (the first item of a key counts
// when a key is used twice). A price moved when both prices are numbers, the old one above zero,
// and the change is more than `max_percent` percent of the old price, up or down.
FeedChanges compare_items(const ItemList& previous, const ItemList& current, double max_percent);

}  // namespace talmo::feedcheck
