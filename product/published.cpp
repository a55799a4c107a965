#include "product/published.h"

#include "core/lookup.h"
#include "core/statements.h"
#include "core/strings.h"

namespace talmo {

bool PRODUCTPUBLISHED(Query& VAR_QUERY, const std::string& IDX) {
  bool published = false;
  guard_lookup(VAR_QUERY, [&] {
    if (open_lookup(VAR_QUERY, statements::product_columns({"published"}, IDX))) {
      published = VAR_QUERY.field_bool("published");
    }
  });
  return published;
}

bool ISONLYFORGRANDO(Query& VAR_QUERY, const std::string& IDX) {
  bool clearance = false;
  guard_lookup(VAR_QUERY, [&] {
    if (open_lookup(VAR_QUERY, statements::product_columns({"sorszam"}, IDX))) {
      clearance = contains(upper_ascii(VAR_QUERY.field_text("sorszam")), "AKC");
    }
  });
  return clearance;
}

}  // namespace talmo
