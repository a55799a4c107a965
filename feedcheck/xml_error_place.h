#pragma once

#include <cstddef>
#include <string>

#include "core/file_reader.h"

namespace talmo::feedcheck {

// Where an error stands among a feed's items.
struct ItemPlace {
  std::size_t number = 0;  // items started before the error; 0 before the first
  bool inside = false;     // whether the error is inside item `number`
};

// Reads `file` again from its start up to `line` and `column` (the first fatal error libxml2
// reported, which its streaming reader meets ahead of the items it has handed over) and counts the
// `item` elements that start before it. CDATA sections and comments are skipped, since the shop's
// descriptions hold HTML. Raises FileReadError.
ItemPlace locate_item(FileReader& file, const std::string& item, std::size_t line,
                      std::size_t column);

}  // namespace talmo::feedcheck
