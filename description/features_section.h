#pragma once

#include <string>

#include "core/database.h"

namespace talmo {

// "Egyéb jellemzõk": one line per present port or extra with its search icons, the free texts,
// the battery, and the product's extra texts for SITE from `extra_jellemzo`. Translations made
// while the feature row is open go through a second cursor on VAR_QUERY's connection.
std::string GENERATELEIRAS_EGYEBJELLEMZOK(Query& VAR_QUERY, const std::string& IDX,
                                          const std::string& SITE);

}  // namespace talmo
