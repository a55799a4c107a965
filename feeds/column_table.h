#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/strings.h"

namespace talmo {

// One row of an XML feed's column table.
struct OSZ {
  StringList OSZLOP;
};

// An XML feed's items while its export runs (TALMOP, GRANDO, HEUREKASK). Row 0 holds the column
// names; every later row holds one product's values in the same order and goes to `row_added` as
// soon as it is complete, so the feed file is written as its items are produced. Each export owns
// its table and starts it empty.
struct ColumnTable {
  OSZ header;
  std::int32_t row_count = 0;     // TALMO_DB, GRANDO_DB, HEUREKASK_DB: rows, header included
  std::int32_t column_count = 0;  // OSZLOP_DB: set by the header, the width of every later row
  std::function<void(const StringList& names, const StringList& row)> row_added;
};

// The header builders' step: row 0 of a fresh table, the column count set to the number of names.
void add_header_row(ColumnTable& table, const StringList& names);

// The line builders' step: one more row of `column_count` cells holding `values` in column
// order (values beyond the width dropped, missing ones empty), handed to `row_added`.
void add_item_row(ColumnTable& table, const StringList& values);

}  // namespace talmo
