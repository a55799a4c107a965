#pragma once

#include <string>

#include "app/database.h"
#include "app/strings.h"

namespace talmo {

// The product's published flag; false without a row or when the lookup fails.
bool PRODUCTPUBLISHED(Query& VAR_QUERY, const std::string& IDX);
// Whether the product is a clearance item ("akc" in any case in its sorszam), which only the
// Grando feed carries; false without a row or when the lookup fails.
bool ISONLYFORGRANDO(Query& VAR_QUERY, const std::string& IDX);

// The export operations the run calls: list every product id, then run the feed's list
// operation for its site. File errors pass on to the run's guard.
void DO_EXPORT_TALMO();
void DO_EXPORT_ARUKERESO();
void DO_EXPORT_GRANDO();
void DO_EXPORT_VATERA();
void DO_EXPORT_HEUREKASK();

// The list operations: drop unpublished ids from `list`, walk the rest with a progress line,
// build each item and write the feed's file.
void GENERATE_TALMO(Query& VAR_QUERY, StringList& list, const std::string& SITE);
void GENERATE_ARUKERESO(Query& VAR_QUERY, StringList& list, const std::string& SITE);
void GENERATE_GRANDO(Query& VAR_QUERY, StringList& list, const std::string& SITE);
void GENERATE_VATERA(Query& VAR_QUERY, StringList& list, const std::string& SITE);
void GENERATE_HEUREKA_SK(Query& VAR_QUERY, StringList& list, const std::string& SITE);

}  // namespace talmo
