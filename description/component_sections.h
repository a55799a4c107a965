#pragma once

#include <string>

#include "core/database.h"

namespace talmo {

// The five component sections of the long description: a named anchor, the translated component
// name, an optional brand/search icon, the one-line text, the HU article link and a hidden
// details table. Each reuses VAR_QUERY; a failure prints the query-error line and the section is
// assembled from what was ready before it (no half table). A product without a row gets the frame.

// Processor: brand icon for Intel (i7/i5/i3), NVIDIA (Tegra) and AMD; table "cpu".
std::string GENERATELEIRAS_PROCESSZOR(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);
// Display: full hd and 3d search icons; table "display".
std::string GENERATELEIRAS_KIJELZO(Query& VAR_QUERY, const std::string& IDX,
                                   const std::string& SITE);
// Memory: no icon, no article; table "memory".
std::string GENERATELEIRAS_MEMORY(Query& VAR_QUERY, const std::string& IDX,
                                  const std::string& SITE);
// Hard disks, a numbered header row and rows per present entry (absent ones keep their number);
// the heading and the table stand whenever the product exists. Ssd search icon; table "hdd".
std::string GENERATELEIRAS_MEREVLEMEZ(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);
// Graphics cards, numbered like the disks; the icon follows the first stored card; table "gcard".
std::string GENERATELEIRAS_GCARD(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE);

}  // namespace talmo
