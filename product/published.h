#pragma once

#include <string>

#include "core/database.h"

namespace talmo {

// The product's published flag; false without a row or when the lookup fails.
bool PRODUCTPUBLISHED(Query& VAR_QUERY, const std::string& IDX);

// Whether the product is a clearance item ("akc" in any case in its sorszam), which only the
// Grando feed carries; false without a row or when the lookup fails.
bool ISONLYFORGRANDO(Query& VAR_QUERY, const std::string& IDX);

}  // namespace talmo
