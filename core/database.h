#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/statements.h"
#include "core/strings.h"

namespace talmo {

class Snapshot;

// One result as the server gives it: its column names and its rows in the server's order, each
// row one cell per column, NULL as nullopt.
struct ResultSet {
  using Row = std::vector<std::optional<std::string>>;
  StringList column_names;
  std::vector<Row> rows;
};

// The one connection to the shop's MySQL database. Character set "utf8"; the port is the client
// library's default (MYSQL_TCP_PORT or 3306), never the one in config.dat. The session only
// reads: the tool never writes to the shop's database.
class Connection {
 public:
  Connection();
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  // Connects with the given login and makes the session read-only; raises DatabaseError with the
  // client library's message.
  void open(const std::string& host, const std::string& user, const std::string& password,
            const std::string& database);
  bool connected() const;

  // Sends `statement`, which must return rows, and gives its whole result. Raises DatabaseError
  // with the server's message.
  ResultSet select(const std::string& statement);
  // Sends `statement`, which returns no rows (session and transaction control). Raises
  // DatabaseError with the server's message.
  void execute(const std::string& statement);
  // How many statements this connection has sent to the server.
  std::uint64_t statements_sent() const { return statements_sent_; }

  // The run's snapshot while a Transaction keeps one: cursors on this connection take their
  // answers from it. nullptr otherwise, and then every cursor asks the server.
  Snapshot* snapshot() const { return snapshot_.get(); }

 private:
  friend class Transaction;
  struct Handle;
  std::unique_ptr<Handle> handle_;
  std::unique_ptr<Snapshot> snapshot_;
  std::uint64_t statements_sent_ = 0;
};

// The connection's transaction. A run reads all its exports inside one read-only transaction
// with a consistent snapshot, so every statement sees the catalogue as it was when the exports
// began, also while the shop edits products, and the same statement always gets the same answer.
class Transaction {
 public:
  explicit Transaction(Connection& connection);
  // Ends a transaction still open; a failure to do so is not raised (the connection may be gone).
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  // START TRANSACTION READ ONLY, WITH CONSISTENT SNAPSHOT; the connection's cursors then take
  // their answers from a Snapshot until commit(). Raises DatabaseError.
  void start();
  // Drops the snapshot's memory and ends the transaction with COMMIT. Raises DatabaseError.
  void commit();
  bool active() const { return active_; }

 private:
  Connection& connection_;
  bool active_ = false;
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

  // Runs the statement, or takes its answer from the connection's snapshot; it must return
  // rows. Raises DatabaseError on any failure.
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
  // The statement's lines joined by "\n".
  const std::string& lines() const;

  Connection& connection_;
  Statement statement_{StatementKind::unlisted, {}, ""};
  // The statement's lines joined by "\n", when its text holds a CR or LF; otherwise the lines are
  // the text itself. Sent without leading empty lines.
  std::string joined_lines_;
  bool active_ = false;
  std::shared_ptr<const ResultSet> result_;
  std::size_t position_ = 0;
};

}  // namespace talmo
