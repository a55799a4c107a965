#pragma once

#include <string>

#include "core/database.h"

namespace talmo {

// One comma-separated line of the product's main components in the order processor, display,
// memory, disk, graphics, optical drive, accessories (translated for SITE), operating system.
// "" when there is no row. A failed statement or a stored value the builders cannot read prints
// the query-error line of the description's statement and gives "". Reuses VAR_QUERY.
std::string GENERATE_PRODUCT_S_DESC(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE);

// The TALMO feed's short description: GENERATE_PRODUCT_S_DESC.
std::string GENERATE_TALMO_TERMEKLEIRAS_SHORT(Query& VAR_QUERY, const std::string& IDX,
                                              const std::string& SITE);

// The Heureka.sk feed's description: GENERATE_PRODUCT_S_DESC.
std::string GENERATE_HEUREKASK_DESCRIPTION(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE);

}  // namespace talmo
