#pragma once

#include <string>

#include "core/database.h"

namespace talmo {

// The product's kind from its level-0 categories: "Laptop", "Tablet" or
// "Minden egyben PC - AIO PC"; the matching row with the lowest `cat_id` wins. Other level-0
// names are ignored; none, or a failed query, gives "".
std::string GETMAINCATEGORY(Query& VAR_QUERY, const std::string& IDX);

// A second kind of a product filed under two, different from GETMAINCATEGORY; "" unless the
// product has at least two level-0 rows. Among several the one with the lowest `cat_id` wins.
std::string GETSECONDMAINCATEGORY(Query& VAR_QUERY, const std::string& IDX);

// The series (level-2 name, trimmed) under the level-1 category "<gyarto> <main kind>", e.g.
// under "Asus Laptop"; "" when any step finds nothing. The two category statements report a
// failure with the " | Error Message: " line.
std::string GETTHIRDCATEGORY(Query& VAR_QUERY, const std::string& IDX);

// The `cat_id` of the category NAME on LEVEL ("0", "1", "2"), the highest when names repeat;
// "-1" when there is none or the query fails.
std::string GETCATEGORYIDFROMNAMEANDLEVEL(Query& VAR_QUERY, const std::string& NAME,
                                          const std::string& LEVEL);

}  // namespace talmo
