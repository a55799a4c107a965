#pragma once

#include <string>

#include "core/database.h"
#include "core/strings.h"
#include "feeds/column_table.h"
#include "feeds/xml_feed_file.h"

namespace talmo {

// The TALMO fields of one product, each (cursor, product id, site) -> text.
// Manufacturer and model, trimmed, joined by a blank; "" without a row or on a failed lookup.
std::string GENERATE_TALMO_CIKKSZAM(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE);
// The gross price; a hand-set fixed price wins over the computed one.
std::string GENERATE_TALMO_BRUTTO_AR(Query& VAR_QUERY, const std::string& IDX,
                                     const std::string& SITE);
// Always "1 munkanap": the shop ships the next working day.
std::string GENERATE_TALMO_SZALLITASI_IDO(Query& VAR_QUERY, const std::string& IDX,
                                          const std::string& SITE);
// Always "890" forint; kept in the table, the XML writes its own fixed shipping line.
std::string GENERATE_TALMO_SZALLITASI_KOLTSEG(Query& VAR_QUERY, const std::string& IDX,
                                              const std::string& SITE);

// Appends one product's row of eight fields to TALMOP. Returns "".
std::string GENERATE_TALMO_LINE(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE,
                                ColumnTable& TALMOP);

// Starts the TALMO column table: row 0 with the eight column names, OSZLOP_DB = 8.
void GENERATE_TALMO_HEADER(ColumnTable& TALMOP);

// The frame and items of talmo.xml: one <termek> per row, the shipping cost as a fixed line.
XmlLayout talmo_layout();

// Finishes talmo.xml (PATH + "export/hu/talmo.xml"), whose items were written as TALMOP's rows
// were added: the converting lines, "Saving File: ", the file. Raises FileError when the file
// cannot be written.
void TALMO2XML(XmlFeedFile& file, const std::string& PATH);

// The TALMO list operation: the published filter, then, unless nothing is left (the previous
// talmo.xml then stays), one item per product but clearance items, and talmo.xml.
void GENERATE_TALMO(Query& VAR_QUERY, StringList& list, const std::string& SITE,
                    const std::string& PATH);

}  // namespace talmo
