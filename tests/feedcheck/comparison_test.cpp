#include "feedcheck/comparison.h"

#include <gtest/gtest.h>

namespace talmo::feedcheck {
namespace {

TEST(Comparison, ItemsThatAppearedAndDisappearedInFileOrder) {
  const ItemList previous = {{"a", "100"}, {"b", "100"}, {"c", "100"}, {"b", "100"}};
  const ItemList current = {{"d", "100"}, {"c", "100"}, {"a", "100"}, {"e", "100"}, {"d", "1"}};
  const FeedChanges changes = compare_items(previous, current, 30);
  EXPECT_EQ(changes.appeared, (std::vector<std::string>{"d", "e"}));
  EXPECT_EQ(changes.disappeared, (std::vector<std::string>{"b"}));
  EXPECT_TRUE(changes.price_moves.empty());
}

TEST(Comparison, PricesThatMovedByMoreThanTheShare) {
  const struct {
    const char* old_price;
    const char* new_price;
    double max_percent;
    bool reported;
  } cases[] = {
      {"100000", "130000", 30, false},  // exactly the share is not more than it
      {"100000", "130001", 30, true},  {"100000", "70000", 30, false},
      {"100000", "69999", 30, true},   {"265990", "26599", 30, true},  // a figure dropped
      {"26599", "265990", 30, true},                                   // a figure added
      {"814,90", "600,00", 30, false},                                 // decimal commas
      {"600,00", "814,90", 30, true},  {"0", "99990", 30, false},      // nothing to measure against
      {"90", "99990", 30, true},       {"", "99990", 30, false},
      {"99990", "abc", 30, false},     {"100", "100.5", 0, true},
      {"100", "100", 0, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.old_price) + " -> " + c.new_price);
    const FeedChanges changes =
        compare_items({{"k", c.old_price}}, {{"k", c.new_price}}, c.max_percent);
    ASSERT_EQ(changes.price_moves.size(), c.reported ? 1u : 0u);
    if (c.reported) {
      EXPECT_EQ(changes.price_moves[0].old_price, c.old_price);
      EXPECT_EQ(changes.price_moves[0].new_price, c.new_price);
    }
  }
}

TEST(Comparison, TheMoveIsMeasuredAgainstTheOldPrice) {
  const FeedChanges changes = compare_items({{"k", "200"}}, {{"k", "50"}}, 30);
  ASSERT_EQ(changes.price_moves.size(), 1u);
  EXPECT_DOUBLE_EQ(changes.price_moves[0].percent, -75.0);
}

}  // namespace
}  // namespace talmo::feedcheck
