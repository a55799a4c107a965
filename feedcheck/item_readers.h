#pragma once

#include <functional>
#include <optional>

#include "core/file_reader.h"
#include "feedcheck/feed_item.h"
#include "feedcheck/feed_kinds.h"
#include "feedcheck/problems.h"

namespace talmo::feedcheck {

// Called with each item (or CSV record) as soon as it is read; the item is not kept.
using ItemHandler = std::function<void(const FeedItem& item)>;

// Reads an XML feed with libxml2's streaming reader and hands over every item element under the
// root: its child elements by name with their text, and Heureka's PARAM_NAME / VAL pairs.
// Returns the first fatal error (line, column and the item it is in) when the file is not
// well-formed, or a root element other than `kind.root`. Raises FileReadError.
std::optional<FileProblem> read_xml_items(FileReader& file, const FeedKind& kind,
                                          const ItemHandler& on_item);

// Reads a CSV file whose fields are enclosed in double quotes (doubled inside) and joined by ","
// record by record, a quoted field running over line ends; empty lines and a byte order mark are
// skipped. Returns the place where a record cannot be split (text after a closing quote, a quote
// in an unquoted field, a quote never closed). Raises FileReadError.
std::optional<FileProblem> read_quoted_records(FileReader& file, const ItemHandler& on_record);

// Reads the Vatera file: a line starting "7937228;" starts a record, any other line continues
// the record before it (its description). Each record comes as one field holding its lines
// joined by "\n" (a byte order mark skipped). A first line that starts no record cannot be
// split. Raises FileReadError.
std::optional<FileProblem> read_vatera_records(FileReader& file, const ItemHandler& on_record);

}  // namespace talmo::feedcheck
