#pragma once

#include <string>

#include "core/database.h"
#include "core/strings.h"

namespace talmo {

// The Árukereső fields of one product, each (cursor, product id, site) -> text.

// The manufacturer (`gyarto`) trimmed; "" without a row or on a failed lookup. Grando and
// Heureka.sk use the same.
std::string GENERATE_ARUKERESO_MANUFACTURER(Query& VAR_QUERY, const std::string& IDX,
                                            const std::string& SITE);
// Always "Főoldal>Számítógép>Notebook".
std::string GENERATE_ARUKERESO_CATEGORY(Query& VAR_QUERY, const std::string& IDX,
                                        const std::string& SITE);
// The gross price; a hand-set fixed price wins over the computed one.
std::string GENERATE_ARUKERESO_PRICE(Query& VAR_QUERY, const std::string& IDX,
                                     const std::string& SITE);
// Always "1" (day).
std::string GENERATE_ARUKERESO_DELIVERY_TIME(Query& VAR_QUERY, const std::string& IDX,
                                             const std::string& SITE);
// Always "890" forint. Not a column of the feed: Árukereső takes shipping from the shop's
// account settings.
std::string GENERATE_ARUKERESO_DELIVERY_COST(Query& VAR_QUERY, const std::string& IDX,
                                             const std::string& SITE);
// `product_number` exactly as stored (blanks kept, unlike the manufacturer); "" without a row.
std::string GENERATE_ARUKERESO_PRODUCT_NUMBER(Query& VAR_QUERY, const std::string& IDX,
                                              const std::string& SITE);

// The first line of arukereso.csv: the eleven column names, each quoted, joined by ",".
std::string GENERATE_ARUKERESO_HEADER();

// One product's line: the eleven fields, each quoted, joined by ",". No line end of its own.
std::string GENERATE_ARUKERESO_LINE(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE);

// The Árukereső list operation: the header line, the published filter, one line per product but
// clearance items, saved as PATH + "export/" + SITE + "/arukereso.csv" (header only when the
// filter leaves nothing). An empty id list writes nothing.
void GENERATE_ARUKERESO(Query& VAR_QUERY, StringList& list, const std::string& SITE,
                        const std::string& PATH);

}  // namespace talmo
