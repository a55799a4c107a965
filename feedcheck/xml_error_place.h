#pragma once

#include <cstddef>
#include <string>

#include "core/file_reader.h"

namespace talmo::feedcheck {

// Where an error stands among a feed's items.
struct ItemPlace {
  std::size_t number = 0;    // items started before the error; 0 before the first
  bool inside = false;       // whether the error is inside item `number`
  std::string key;           // the key of item `number`, when it stands before the error
  std::string previous_key;  // the key of the item before it, likewise
};

// Reads `file` again from its start up to `line` and `column` (the first fatal error libxml2
// reported, which its streaming reader meets ahead of the items it has handed over) and counts the
// `item` elements that start before it, with the text of their `key` elements (written on one
// line, as the export writes them). CDATA sections and comments are skipped, since the shop's
// descriptions hold HTML. Raises FileReadError.
ItemPlace locate_item(FileReader& file, const std::string& item, const std::string& key,
                      std::size_t line, std::size_t column);

}  // namespace talmo::feedcheck
