#pragma once

#include <string>

namespace talmo {

// Grando's category number for a manufacturer (MANUFACT), series (BEMENET) and product group
// (TERMEKCSOPORT1), all matched as case-insensitive substrings; "" when nothing applies. The
// first brand contained in MANUFACT decides; within it the last matching group or series wins.
// TERMEKCSOPORT2 (a second kind) is accepted but never consulted.
std::string GET_CATEGORY_NUMBER(const std::string& MANUFACT, const std::string& BEMENET,
                                const std::string& TERMEKCSOPORT1,
                                const std::string& TERMEKCSOPORT2);

}  // namespace talmo
