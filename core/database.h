#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/statements.h"
#include "core/strings.h"

namespace talmo {

// The one connection to the shop's MySQL database. Character set "utf8"; the port is the client
// library's default (MYSQL_TCP_PORT or 3306), never the one in config.dat.
class Connection {
 public:
  Connection();
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  // Connects with the given login; raises DatabaseError with the client library's message.
  void open(const std::string& host, const std::string& user, const std::string& password,
            const std::string& database);
  bool connected() const;

 private:
  friend class Query;
  struct Handle;
  std::unique_ptr<Handle> handle_;
};

// A query cursor over a fully buffered result. Every lookup closes it, sets its statement,
// opens it and reads fields of the current row by name. Failures raise DatabaseError.
class Query {
 public:
  explicit Query(Connection& connection);
  Query(const Query&) = delete;
  Query& operator=(const Query&) = delete;

  Connection& connection() const { return connection_; }

  void close();
  // Closes the cursor and replaces its statement. The text is kept as lines, so a CR, LF or CRLF
  // inside it (also one inside a spliced value) ends a line, and sql_text() ends each with "\n".
  void set_statement(Statement statement);
  // The statement last set; a new cursor holds an empty unlisted one.
  const Statement& statement() const { return statement_; }
  std::string sql_text() const;

  // Runs the statement; it must return rows. Raises DatabaseError on any failure.
  void open();
  bool active() const { return active_; }

  void first();
  void last();
  void next();
  bool eof() const;
  std::int64_t record_count() const;

  // The named column of the current row. NULL reads as "" and as false; an unknown column or a
  // closed cursor raises DatabaseError. Without a current row the value is empty.
  std::string field_text(const std::string& name) const;
  bool field_bool(const std::string& name) const;

 private:
  const std::optional<std::string>* current_cell(const std::string& name) const;

  Connection& connection_;
  Statement statement_{StatementKind::unlisted, {}, ""};
  StringList sql_lines_;
  bool active_ = false;
  StringList column_names_;
  std::vector<std::vector<std::optional<std::string>>> rows_;
  std::size_t position_ = 0;
};

}  // namespace talmo
