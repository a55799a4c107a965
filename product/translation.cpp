#include "product/translation.h"

#include "core/lookup.h"
#include "core/strings.h"

namespace talmo {

std::string GETTRANSLATION(Query& VAR_QUERY, const std::string& FROM_STR, const std::string& LANG) {
  return lookup_text(VAR_QUERY,
                     "SELECT forditas FROM laptop_adatbazis_forditasok WHERE szocikk='" + FROM_STR +
                         "' " + "AND language='" + upper_ascii(LANG) + "' " +
                         "ORDER BY id DESC LIMIT 1;",
                     "forditas");
}

}  // namespace talmo
