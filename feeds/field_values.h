#pragma once

#include <initializer_list>
#include <string>

#include "core/database.h"
#include "core/strings.h"

namespace talmo {

// One field of a feed line: (cursor, product id, site) -> text.
using FieldFunction = std::string (*)(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);

// The fields' values for one product, in the order given. The fields run their statements on the
// shared cursor strictly one after another, so the order is also the order of the queries.
inline StringList field_values(std::initializer_list<FieldFunction> fields, Query& VAR_QUERY,
                               const std::string& IDX, const std::string& SITE) {
  StringList values;
  for (FieldFunction field : fields)
    values.push_back(field(VAR_QUERY, IDX, SITE));
  return values;
}

}  // namespace talmo
