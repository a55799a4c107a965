#pragma once

#include <string>

#include "core/database.h"

namespace talmo {

// The component list of a product's name, e.g. "i5-3210M, 15.6HD, 500GB+32GB, 4GB, GT 630M 1GB,
// DVD RW, Win7", built from eight stored columns with one statement each. A part is preceded by
// ", " even when nothing stands before it, so an empty processor gives a leading ", ". A failed
// statement prints the query-error line and leaves its part out. SITE does not change the name.
std::string TERMEKNEV_GENERATOR(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE);

// The model name + " - " + the component list, followed by ", " and the accessories (their ";"
// turned into ","). Without a row, or after a failed statement (error line printed), " - ".
std::string GENERATE_ARUKERESO_NAME(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE);

// The manufacturer + " " + GENERATE_ARUKERESO_NAME, or that name alone when there is no
// manufacturer. A failed manufacturer statement prints the error line with the database's message
// and keeps the name built so far.
std::string GENERATE_TALMO_TERMEKNEV(Query& VAR_QUERY, const std::string& IDX,
                                     const std::string& SITE);

}  // namespace talmo
