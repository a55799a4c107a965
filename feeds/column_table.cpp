#include "feeds/column_table.h"

namespace talmo {

void add_header_row(ColumnTable& table, const StringList& names) {
  ++table.row_count;
  table.column_count = static_cast<std::int32_t>(names.size());
  table.header.OSZLOP = names;
}

void add_item_row(ColumnTable& table, const StringList& values) {
  ++table.row_count;
  StringList row(static_cast<std::size_t>(table.column_count));
  for (std::size_t k = 0; k < row.size() && k < values.size(); ++k)
    row[k] = values[k];
  if (table.row_added)
    table.row_added(table.header.OSZLOP, row);
}

}  // namespace talmo
