#pragma once

#include <string>

#include "core/database.h"
#include "core/strings.h"
#include "feeds/column_table.h"
#include "feeds/xml_feed_file.h"

namespace talmo {

// The Heureka.sk fields of one product, each (cursor, product id, site) -> text; texts meant for
// the reader are in Slovak, looked up for SITE.

// The SKU with every "/" turned into "-" (e.g. "12345-Asus"); "" without a row.
std::string GENERATE_HEUREKASK_ITEM_ID(Query& VAR_QUERY, const std::string& IDX,
                                       const std::string& SITE);
// Manufacturer and model, the same label as the TALMO feed's article number.
std::string GENERATE_HEUREKASK_PRODUCTNAME(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE);
// `gyarto` + " " + `tipusmegnevezes` + " - " + the component list, then the translated
// accessories (";" read as ",") and the translated `extra_mezo`, each after a blank when stored.
// "" without a row; a failed statement prints the query-error line and keeps what was built.
std::string GENERATE_HEUREKASK_PRODUCT(Query& VAR_QUERY, const std::string& IDX,
                                       const std::string& SITE);
// The gross price with "." as decimal point; a hand-set fixed price wins over the computed one.
std::string GENERATE_HEUREKASK_PRICE_VAT(Query& VAR_QUERY, const std::string& IDX,
                                         const std::string& SITE);
// The manufacturer, trimmed, as the Árukereső feed prints it.
std::string GENERATE_HEUREKASK_MANUFACTURER(Query& VAR_QUERY, const std::string& IDX,
                                            const std::string& SITE);
// "Heureka.sk | Elektronika | Počítače a kancelária | " + the translated main category's level
// ("Notebooky", "Tablet" or the translated name itself) + " | " + the manufacturer.
std::string GENERATE_HEUREKASK_CATEGORYTEXT(Query& VAR_QUERY, const std::string& IDX,
                                            const std::string& SITE);
// Always "3"; the XML writes the delivery date element empty whatever this says.
std::string GENERATE_HEUREKASK_DELIVERY_DATE(Query& VAR_QUERY, const std::string& IDX,
                                             const std::string& SITE);
// Always the UPS delivery block, price and cash on delivery 4,40 each, as ready-made XML.
std::string GENERATE_HEUREKASK_DELIVERY(Query& VAR_QUERY, const std::string& IDX,
                                        const std::string& SITE);
// Always "": the shop sends no EAN codes, but the element must be present.
std::string GENERATE_HEUREKASK_EAN(Query& VAR_QUERY, const std::string& IDX,
                                   const std::string& SITE);
// Always "0,20", the Slovak VAT rate. Not a column of the feed; kept as the stated rate.
std::string GENERATE_HEUREKASK_VAT(Query& VAR_QUERY, const std::string& IDX,
                                   const std::string& SITE);

// A price text the way Heureka.sk reads it: a single character (UTF-8, not byte) after the point
// gets a "0" after it, then every "." becomes "," ("499.9" gives "499,90", "1200" stays). A
// one-character price without a point gets the "0" as well ("9" gives "90", a fixed price "€"
// gives "€0"): the rule is kept as it always ran.
std::string heureka_price_decimals(const std::string& price);

// Appends one product's row of fourteen fields to HEUREKASK, the price with its decimal comma.
// Returns "".
std::string GENERATE_HEUREKASK_LINE(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE, ColumnTable& HEUREKASK);

// Starts the Heureka.sk column table: row 0 with the fourteen element names, OSZLOP_DB = 14.
void GENERATE_HEUREKASK_HEADER(ColumnTable& HEUREKASK);

// The frame and items of heureka.xml: one <SHOPITEM> per row, the delivery date always empty.
XmlLayout heureka_layout();

// Finishes heureka.xml (PATH + "export/sk/heureka.xml"), whose items were written as HEUREKASK's
// rows were added: the converting lines, "Saving Output File: ", the file. Raises FileError when
// the file cannot be written.
void HEUREKASK2XML(XmlFeedFile& file, const std::string& PATH);

// The Heureka.sk list operation: the published filter, one item per product, clearance items
// included, and heureka.xml (a header-only file when the list is empty after the filter).
void GENERATE_HEUREKA_SK(Query& VAR_QUERY, StringList& list, const std::string& SITE,
                         const std::string& PATH);

}  // namespace talmo
