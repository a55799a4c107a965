#pragma once

#include <cstdint>
#include <string>

#include "core/database.h"
#include "core/strings.h"
#include "feeds/column_table.h"
#include "feeds/xml_feed_file.h"

namespace talmo {

// The Grando fields of one product, each (cursor, product id, site) -> text.

// Manufacturer + " " + `nev` (both as stored) + " - " + the component list + " " + a kind suffix:
// "LAPTOP, ULTRABOOK" for a product in the shop's Ultrabook category, "LAPTOP, NOTEBOOK" when
// its main category holds "laptop", else the main category name itself.
std::string GENERATE_GRANDO_NAME(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE);
// A clearance item's `sorszam` as stored; any other product's SKU + " LAPTOP, NOTEBOOK".
std::string GENERATE_GRANDO_PRODUCT_ID(Query& VAR_QUERY, const std::string& IDX,
                                       const std::string& SITE);

// OSSZEG raised by PERCENT percent, rounded (ties to even) and given a "90" ending in place of
// its last two figures. A text that is not a 32-bit whole number comes back unchanged, and a
// result of a single figure is left as computed.
std::string GENERATE_GRANDO_ADDPERCENT(std::int32_t PERCENT, const std::string& OSSZEG);

// The list price: computed from the old net price, fixed prices ignored, raised by 4 %.
std::string GENERATE_GRANDO_PRICE(Query& VAR_QUERY, const std::string& IDX,
                                  const std::string& SITE);
// The shop's selling price (a fixed price wins) raised by 4 %.
std::string GENERATE_GRANDO_DISCOUNT_PRICE(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE);
// The marketplace long description, as the Árukereső feed has it.
std::string GENERATE_GRANDO_DESCRIPTION(Query& VAR_QUERY, const std::string& IDX,
                                        const std::string& SITE);
// `garancia` trimmed; "" without a row. The XML maps it to a code.
std::string GENERATE_GRANDO_WARRANTYF(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);
// The manufacturer trimmed, as the Árukereső feed has it.
std::string GENERATE_GRANDO_MANUFACTURER(Query& VAR_QUERY, const std::string& IDX,
                                         const std::string& SITE);
// GET_CATEGORY_NUMBER of the trimmed manufacturer and the product's series and kinds; "" without
// a product row.
std::string GENERATE_GRANDO_CATEGORY(Query& VAR_QUERY, const std::string& IDX,
                                     const std::string& SITE);

// Grando's warranty code of a warranty text: "7" when it holds "12", else "8" when it holds
// "24", else "9". A substring test, so "120" counts as twelve. Vatera uses the same codes.
std::string grando_warranty_code(const std::string& warranty);

// Starts the Grando column table: row 0 with the ten column names, OSZLOP_DB = 10.
void GENERATE_GRANDO_HEADER(ColumnTable& GRANDO);

// Appends one product's row of ten fields to GRANDO; when the discount price is above the list
// price (both whole numbers) the price column shows the discount price. Returns "".
std::string GENERATE_GRANDO_LINE(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE,
                                 ColumnTable& GRANDO);

// The frame and items of grando.xml: one <product> per row, warranty texts mapped to Grando's
// codes, a fixed status line.
XmlLayout grando_layout();

// Finishes grando.xml, whose items were written as GRANDO's rows were added: the converting
// lines and the file (no saving line). Raises FileError when it cannot be written.
void GRANDO2XML(XmlFeedFile& file);

// The Grando list operation: the published filter, one item per product, clearance items
// included, and grando.xml (a header-only file when the list is empty after the filter).
void GENERATE_GRANDO(Query& VAR_QUERY, StringList& list, const std::string& SITE,
                     const std::string& PATH);

}  // namespace talmo
