#pragma once

#include <cstdint>
#include <string>

#include "core/database.h"

namespace talmo {

// Inline style attributes of the long description's paragraphs, cells and tables. They carry no
// leading blank: a section writes "<p " + HTML_ADDPSTYLING1() + ">" and so on. The marketplace
// restyling matches these exact texts, so they must not change on their own.

// Heading paragraph of a section and the left (label) paragraphs of its table.
std::string HTML_ADDPSTYLING1();
// Right (value) paragraphs of a section's table.
std::string HTML_ADDPSTYLING2();

// Header cells: left border 0px / 1px, bottom border 1px.
std::string HTML_ADDTHSTYLING1();
std::string HTML_ADDTHSTYLING2();
// Body cells: ALL left 1px bottom 0px, EMPTY left 0px bottom 0px, BOTTOM1 left 0px bottom 1px,
// BOTTOM2 left 1px bottom 1px (the BOTTOM pair closes a table's last row).
std::string HTML_ADDTDSTYLING_ALL();
std::string HTML_ADDTDSTYLING_EMPTY();
std::string HTML_ADDTDSTYLING_BOTTOM1();
std::string HTML_ADDTDSTYLING_BOTTOM2();

// Attributes of a hidden details table whose id is named by TIPUS: 0 "cpu", 1 "display",
// 2 "memory", 3 "hdd", 4 "gcard"; any other number gives an empty id (id="").
std::string HTML_ADDTABLESTYLING(std::int32_t TIPUS);
// The part of HTML_ADDTABLESTYLING before its id attribute, ending in one blank.
std::string table_style_before_id();

// The yes/no icon of a details row, its alt text the translation into LANG of "A készülék
// rendelkezik ezzel az elemmel" (TF) or "... nem rendelkezik ..." (not TF). Reuses VAR_QUERY;
// a failed translation prints the query-error line and leaves the alt text empty.
std::string HTML_ADDTRUEORFALSEIMAGE(bool TF, Query& VAR_QUERY, const std::string& LANG);

// "<strong>" + STR + "</strong>".
std::string HTML_STRONG(const std::string& STR);

}  // namespace talmo
