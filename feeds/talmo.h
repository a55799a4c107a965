#pragma once

#include <string>

#include "app/database.h"

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

// Appends one product's row of eight fields to the TALMO table. Returns "".
std::string GENERATE_TALMO_LINE(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE);

// Starts the TALMO column table: row 0 with the eight column names, OSZLOP_DB = 8.
void GENERATE_TALMO_HEADER();

// Writes the TALMO table as PATH + "export/hu/talmo.xml", one <termek> per row after the header.
// Raises FileError when the file cannot be written.
void TALMO2XML();

}  // namespace talmo
