#pragma once

#include <string>

#include "core/database.h"

namespace talmo {

// The five sections without a details table: the translated name and one value inside the
// site's wrapper texts. Each reuses VAR_QUERY; a failure prints the query-error line and the
// section shows its empty value.

// Optical drive, with the Blu-ray search icon; "Optikai meghajtó nélkül" when there is none.
std::string GENERATELEIRAS_OPTIKAIMEGHAJTO(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE);
// Installed operating systems with their icons and HU article links.
std::string GENERATELEIRAS_OPERACIOSRENDSZER(Query& VAR_QUERY, const std::string& IDX,
                                             const std::string& SITE);
// Keyboard; "Billentyûzet nélkül" when there is none.
std::string GENERATELEIRAS_BILLENTYUZET(Query& VAR_QUERY, const std::string& IDX,
                                        const std::string& SITE);
// Stock status, translated as a whole.
std::string GENERATELEIRAS_KESZLET(Query& VAR_QUERY, const std::string& IDX,
                                   const std::string& SITE);
// Warranty, translated as a whole.
std::string GENERATELEIRAS_GARANCIA(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE);

}  // namespace talmo
