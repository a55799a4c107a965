#include "feeds/column_table.h"

#include "core/console.h"
#include "core/progress.h"

namespace talmo {

void add_header_row(ColumnTable& table, const StringList& names) {
  ++table.row_count;
  table.rows.resize(static_cast<std::size_t>(table.row_count));
  table.column_count = static_cast<std::int32_t>(names.size());
  table.rows.back().OSZLOP = names;
}

void add_item_row(ColumnTable& table, const StringList& values) {
  ++table.row_count;
  table.rows.resize(static_cast<std::size_t>(table.row_count));
  StringList& row = table.rows.back().OSZLOP;
  row.assign(static_cast<std::size_t>(table.column_count), std::string());
  for (std::size_t k = 0; k < row.size() && k < values.size(); ++k)
    row[k] = values[k];
}

StringList convert_table_to_xml(const ColumnTable& table, const XmlLayout& layout) {
  StringList lines = layout.opening;
  const std::int64_t last = static_cast<std::int64_t>(table.rows.size()) - 1;
  for (std::int64_t i = 1; i <= last; ++i) {
    write_line("Converting to XML: " + padded_percent(i, last) + "%");
    lines.push_back(layout.item_opening);
    const StringList& names = table.rows.front().OSZLOP;
    const StringList& values = table.rows[static_cast<std::size_t>(i)].OSZLOP;
    for (std::size_t j = 0; j < values.size() && j < names.size(); ++j) {
      if (auto line = layout.element(names[j], values[j]))
        lines.push_back(*line);
    }
    lines.insert(lines.end(), layout.item_closing.begin(), layout.item_closing.end());
  }
  lines.push_back(layout.closing);
  return lines;
}

}  // namespace talmo
