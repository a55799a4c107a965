#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "core/file_output.h"
#include "core/strings.h"
#include "feeds/column_table.h"

namespace talmo {

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

// An XML feed being written: the opening lines at once, one item per table row as the row is
// added, and at the end the closing line; the file replaces the old one only when committed.
class XmlFeedFile {
 public:
  XmlFeedFile(const std::string& path, XmlLayout layout);

  // Lets `table` send every row it gets to this file.
  void attach(ColumnTable& table);

  // The item of one row, each column's element found by its name in `names`.
  void write_item(const StringList& names, const StringList& values);

  // Prints "Converting to XML: " with the padded percentage for every item written (the lines
  // the operators see while a feed is converted) and writes the closing line.
  void finish_items();

  // Renames the finished file over the old one. Raises FileError naming the feed file.
  void commit() { file_.commit(); }

 private:
  XmlLayout layout_;
  ReplacingFile file_;
  std::int64_t items_ = 0;
};

}  // namespace talmo
