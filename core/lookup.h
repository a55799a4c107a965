#pragma once

#include <string>

#include "core/console.h"
#include "core/database.h"
#include "core/errors.h"
#include "core/statements.h"

namespace talmo {

// Which query-error line a guard prints when a lookup fails.
enum class QueryErrorLine {
  // "Error in Query: \r\r" + statement + "\r\r": the line nearly every lookup prints.
  plain,
  // The plain line followed by "SQL Return Message: \r\r" + the error's message.
  with_message,
  // "Error in Query: " + statement + " | Error Message: " + message (third-level category).
  with_error_message,
  // statement + "|" + message: the export's product id list, which has no lookup of its own.
  id_list,
};

// The text of the error line for `query`'s current statement (which ends in "\n").
std::string query_error_line(const Query& query, QueryErrorLine style, const std::string& message);

// Runs `body` under a lookup guard: a failure of the tool's own kind is not passed on; the error
// line for the cursor's current statement is printed instead. Returns false when it failed.
template <class Body>
bool guard_lookup(Query& query, Body&& body, QueryErrorLine style = QueryErrorLine::plain) {
  try {
    body();
    return true;
  } catch (const ConnectionLost&) {
    throw;
  } catch (const TalmoError& error) {
    write_line(query_error_line(query, style, error.what()));
    return false;
  }
}

// Closes the cursor, sets `statement`, opens it and counts the rows; with at least one row the
// cursor is left on the first row and the result is true. Failures raise; call it inside a guard.
bool open_lookup(Query& query, Statement statement);

// The named column of the first row of `statement`: "" without a row, and "" after printing the
// plain error line when the lookup fails.
std::string lookup_text(Query& query, Statement statement, const std::string& field);

}  // namespace talmo
