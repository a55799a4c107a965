#include "product/translation.h"

#include "core/lookup.h"
#include "core/statements.h"
#include "core/strings.h"

namespace talmo {

std::string GETTRANSLATION(Query& VAR_QUERY, const std::string& FROM_STR, const std::string& LANG) {
  return lookup_text(VAR_QUERY, statements::translation(FROM_STR, upper_ascii(LANG)), "forditas");
}

}  // namespace talmo
