#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace talmo::feedcheck {

// A value longer than this is kept cut at this length: every rule about a value's length is far
// below it, and a broken quote or a huge text must not make the checker hold a whole feed.
inline constexpr std::size_t kValueLimit = std::size_t{1} << 20;

// One value of an item: an XML element's text or a CSV field.
struct Field {
  std::string name;     // the element's name; "" for a CSV field
  std::string value;    // the text, at most kValueLimit bytes
  bool cut = false;     // the text was longer than kValueLimit
  bool quoted = false;  // CSV: the field was enclosed in double quotes

  void append(std::string_view text);
};

// One item as a feed's reader found it, before any check.
struct FeedItem {
  std::size_t number = 0;     // 1 for the feed's first item
  std::size_t line = 0;       // the line of the file where the item starts
  std::vector<Field> fields;  // in file order
  std::vector<Field> params;  // Heureka.sk: PARAM pairs, name in `name`, value in `value`

  // The first field called `name`, or nullptr.
  const Field* find(std::string_view name) const;
  // The value of the first field called `name`, "" when there is none.
  std::string value(std::string_view name) const;
};

}  // namespace talmo::feedcheck
