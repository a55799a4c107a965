#pragma once

#include <string>

#include "core/database.h"

namespace talmo {

// The raw long description: the eleven sections joined in their fixed order (processor,
// display, memory, disks, graphics, optical drive, features, operating system, keyboard, stock,
// warranty), nothing between them.
std::string GENERATELEIRAS(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE);

// GENERATELEIRAS with the inline styles swapped for the style sheet's ids and classes and the
// toggle scripts removed.
std::string GENERATE_PRODUCT_DESC(Query& VAR_QUERY, const std::string& IDX,
                                  const std::string& SITE);

// The marketplace description (Árukereső, Grando, Vatera): style sheet, toggle script and the
// restyled description with new-window article links and absolute image addresses.
std::string GENERATE_ARUKERESO_DESCRIPTION(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE);

}  // namespace talmo
