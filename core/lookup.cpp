#include "core/lookup.h"

#include <utility>

namespace talmo {

std::string query_error_line(const Query& query, QueryErrorLine style, const std::string& message) {
  switch (style) {
    case QueryErrorLine::plain:
      return "Error in Query: \r\r" + query.sql_text() + "\r\r";
    case QueryErrorLine::with_message:
      return "Error in Query: \r\r" + query.sql_text() + "\r\rSQL Return Message: \r\r" + message;
    case QueryErrorLine::with_error_message:
      return "Error in Query: " + query.sql_text() + " | Error Message: " + message;
    case QueryErrorLine::id_list:
      return query.sql_text() + "|" + message;
  }
  return "";
}

bool open_lookup(Query& query, Statement statement) {
  query.close();
  query.set_statement(std::move(statement));
  query.open();
  query.last();
  if (query.record_count() <= 0)
    return false;
  query.first();
  return true;
}

std::string lookup_text(Query& query, Statement statement, const std::string& field) {
  std::string result;
  guard_lookup(query, [&] {
    if (open_lookup(query, std::move(statement)))
      result = query.field_text(field);
  });
  return result;
}

}  // namespace talmo
