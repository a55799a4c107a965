#include "feeds/xml_feed_file.h"

#include "core/console.h"
#include "core/progress.h"

namespace talmo {

XmlFeedFile::XmlFeedFile(const std::string& path, XmlLayout layout)
    : layout_(std::move(layout)), file_(path) {
  for (const std::string& line : layout_.opening)
    file_.write_line(line);
}

void XmlFeedFile::attach(ColumnTable& table) {
  table.row_added = [this](const StringList& names, const StringList& row) {
    write_item(names, row);
  };
}

void XmlFeedFile::write_item(const StringList& names, const StringList& values) {
  ++items_;
  file_.write_line(layout_.item_opening);
  for (std::size_t j = 0; j < values.size() && j < names.size(); ++j) {
    if (auto line = layout_.element(names[j], values[j]))
      file_.write_line(*line);
  }
  for (const std::string& line : layout_.item_closing)
    file_.write_line(line);
}

void XmlFeedFile::finish_items() {
  for (std::int64_t i = 1; i <= items_; ++i)
    write_line("Converting to XML: " + padded_percent(i, items_) + "%");
  file_.write_line(layout_.closing);
}

}  // namespace talmo
