#pragma once

#include <string>

#include "core/database.h"

namespace talmo {

// The content of a Heureka.sk item's one PARAM element: sixteen name/value pairs of the product's
// components, Slovak names and the shop's own values (only the warranty is translated for SITE).
// A parameter without a row adds nothing, an empty column still adds its pair; a parameter whose
// statement or value fails prints the query-error line with the database's message and is left
// out. One statement per parameter on VAR_QUERY; a missing product gives "".
std::string GENERATE_HEUREKASK_PARAM(Query& VAR_QUERY, const std::string& IDX,
                                     const std::string& SITE);

}  // namespace talmo
