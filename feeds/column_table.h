#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/strings.h"

namespace talmo {

// One row of an XML feed's column table.
struct OSZ {
  StringList OSZLOP;
};

// An XML feed's items while its export runs: row 0 holds the column names, every later row one
// product's values in the same order. Each export owns its table (TALMOP, GRANDO, HEUREKASK)
// and starts it empty, so a run never sees an earlier export's rows.
struct ColumnTable {
  std::vector<OSZ> rows;
  std::int32_t row_count = 0;     // TALMO_DB, GRANDO_DB, HEUREKASK_DB: rows, header included
  std::int32_t column_count = 0;  // OSZLOP_DB: set by the header, the width of every later row
};

// The header builders' step: one more row (row 0 of a fresh table), the column count set to the
// number of names, the names stored in it.
void add_header_row(ColumnTable& table, const StringList& names);

// The line builders' step: one more row of `column_count` cells holding `values` in column
// order; values beyond the width are dropped, missing ones stay empty.
void add_item_row(ColumnTable& table, const StringList& values);

// How one XML feed lays out its items.
struct XmlLayout {
  StringList opening;        // declaration and the root element's opening line
  std::string item_opening;  // e.g. "\t<termek>"
  // The element line for a column name and value; nullopt writes nothing for that column.
  std::function<std::optional<std::string>(const std::string& name, const std::string& value)>
      element;
  StringList item_closing;  // fixed lines after the columns, the item's closing tag last
  std::string closing;      // the root element's closing line
};

// Turns rows 1 to the last into XML lines, finding each column's element by its name in row 0,
// and prints "Converting to XML: " with the padded percentage for every row.
StringList convert_table_to_xml(const ColumnTable& table, const XmlLayout& layout);

}  // namespace talmo
