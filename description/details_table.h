#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "core/database.h"
#include "core/strings.h"

namespace talmo {

// The hidden details table of a component section: a heading paragraph with a show/hide link,
// the table, header rows, label/value rows. Every Hungarian text is translated into SITE through
// VAR_QUERY when it is written.

// What a row's value cell shows: the yes/no icon, a blank, then `text`.
struct RowValue {
  bool present;
  std::string text;
};

// One row: its Hungarian label and the reading of its value. The value is read only when the row
// is written, after the label's translation, so a missing sub-value fails with that translation
// as the cursor's statement (the statement the error line names).
struct DetailsRow {
  std::string label;
  std::function<RowValue()> value;
};

// A row showing the stored sub-value at `position`.
struct LabelAt {
  const char* label;
  std::size_t position;
};

// Rows showing the sub-values of `items` at the labels' positions, present when not empty.
// `items` must outlive the rows; a missing position raises ListIndexError when a row is read.
std::vector<DetailsRow> value_rows(const StringList& items, std::span<const LabelAt> labels);

// The heading paragraph (T(`heading`) and a show/hide link to the table `id`), then the opening
// tag of the table with the attributes of HTML_ADDTABLESTYLING(`table`).
std::string details_open(Query& VAR_QUERY, const std::string& SITE, const std::string& heading,
                         const std::string& id, std::int32_t table);

// A header row: `number` + T(`name`) on the left, T("Érték") on the right, both in bold.
std::string details_header_row(Query& VAR_QUERY, const std::string& SITE, const std::string& number,
                               const std::string& name);

// The rows in order, the last with the bottom cell styles. Failures of a row's value raise.
std::string details_rows(Query& VAR_QUERY, const std::string& SITE,
                         const std::vector<DetailsRow>& rows);

}  // namespace talmo
