#pragma once

#include <string>

#include "core/database.h"

namespace talmo {

// The text stored for the Hungarian word or phrase FROM_STR in the language of the site LANG
// ("hu", "sk", "cz" in any case); the newest row wins. No row gives "" (there is no fall-back to
// the Hungarian text); a failed query prints the query-error line and gives "".
std::string GETTRANSLATION(Query& VAR_QUERY, const std::string& FROM_STR, const std::string& LANG);

}  // namespace talmo
