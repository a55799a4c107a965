#include "feedcheck/comparison.h"

#include <cmath>
#include <unordered_map>
#include <unordered_set>

#include "feedcheck/value_checks.h"

namespace talmo::feedcheck {

FeedChanges compare_items(const ItemList& previous, const ItemList& current, double max_percent) {
  std::unordered_map<std::string, const ItemEntry*> old_items;
  for (const ItemEntry& item : previous)
    old_items.try_emplace(item.key, &item);
  FeedChanges changes;
  std::unordered_set<std::string> seen;
  for (const ItemEntry& item : current) {
    if (!seen.insert(item.key).second)
      continue;
    const auto old = old_items.find(item.key);
    if (old == old_items.end()) {
      changes.appeared.push_back(item.key);
      continue;
    }
    const std::optional<double> before = price_value(old->second->price);
    const std::optional<double> now = price_value(item.price);
    if (!before || !now || *before <= 0)
      continue;
    const double percent = (*now - *before) / *before * 100.0;
    if (std::fabs(percent) > max_percent)
      changes.price_moves.push_back({item.key, old->second->price, item.price, percent});
  }
  std::unordered_set<std::string> reported;
  for (const ItemEntry& item : previous) {
    if (!seen.count(item.key) && reported.insert(item.key).second)
      changes.disappeared.push_back(item.key);
  }
  return changes;
}

}  // namespace talmo::feedcheck
