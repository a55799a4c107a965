#include "core/database.h"

#include <errmsg.h>
#include <mysql.h>
#include <mysqld_error.h>

#include "core/errors.h"
#include "core/snapshot.h"
#include "core/strings.h"
#include "core/system.h"

namespace talmo {
namespace {

constexpr unsigned int kDefaultTimeoutSeconds = 300;

// TALMO_DB_TIMEOUT_S when it is a whole number of seconds above zero, else five minutes.
unsigned int database_timeout_seconds() {
  const std::optional<std::string> text = environment_value("TALMO_DB_TIMEOUT_S");
  const std::optional<std::int32_t> seconds = text ? parse_integer(*text) : std::nullopt;
  return seconds && *seconds > 0 ? static_cast<unsigned int>(*seconds) : kDefaultTimeoutSeconds;
}

// Errors after which the connection is of no more use: the client lost the server (gone away,
// lost during a query, a read or write time-out), or the server shut down or killed it.
bool connection_is_lost(unsigned int code) {
  switch (code) {
    case CR_SERVER_GONE_ERROR:
    case CR_SERVER_LOST:
    case CR_SERVER_LOST_EXTENDED:
    case ER_SERVER_SHUTDOWN:
    case ER_CONNECTION_KILLED:
    case ER_NET_READ_INTERRUPTED:
    case ER_NET_WRITE_INTERRUPTED:
    case ER_NET_READ_ERROR:
    case ER_NET_ERROR_ON_WRITE:
      return true;
    default:
      return false;
  }
}

[[noreturn]] void throw_statement_error(MYSQL* mysql) {
  if (connection_is_lost(mysql_errno(mysql)))
    throw ConnectionLost(mysql_error(mysql));
  throw DatabaseError(mysql_error(mysql));
}

}  // namespace

struct Connection::Handle {
  MYSQL* mysql = nullptr;
  bool connected = false;
};

namespace {

MYSQL* connected_handle(MYSQL* mysql, bool connected) {
  if (mysql == nullptr || !connected)
    throw DatabaseError("Database connect string (DatabaseName) not filled in!");
  return mysql;
}

}  // namespace

Connection::Connection() : handle_(std::make_unique<Handle>()) {}

Connection::~Connection() {
  snapshot_.reset();
  if (handle_->mysql != nullptr)
    mysql_close(handle_->mysql);
}

void Connection::open(const std::string& host, const std::string& user, const std::string& password,
                      const std::string& database) {
  snapshot_.reset();
  if (handle_->mysql != nullptr) {
    mysql_close(handle_->mysql);
    handle_->mysql = nullptr;
    handle_->connected = false;
  }
  handle_->mysql = mysql_init(nullptr);
  if (handle_->mysql == nullptr)
    throw DatabaseError("Out of memory while connecting");
  mysql_options(handle_->mysql, MYSQL_SET_CHARSET_NAME, "utf8");
  // A frozen server must not hang a nightly run: connect, read and write give up after this.
  const unsigned int timeout = database_timeout_seconds();
  mysql_options(handle_->mysql, MYSQL_OPT_CONNECT_TIMEOUT, &timeout);
  mysql_options(handle_->mysql, MYSQL_OPT_READ_TIMEOUT, &timeout);
  mysql_options(handle_->mysql, MYSQL_OPT_WRITE_TIMEOUT, &timeout);
  // Port 0: the client library's default, so MYSQL_TCP_PORT can point the tool elsewhere.
  if (mysql_real_connect(handle_->mysql, host.c_str(), user.c_str(), password.c_str(),
                         database.c_str(), 0, nullptr, 0) == nullptr) {
    throw ConnectionLost(mysql_error(handle_->mysql));
  }
  handle_->connected = true;
  execute("SET SESSION TRANSACTION READ ONLY");
}

bool Connection::connected() const {
  return handle_->connected;
}

ResultSet Connection::select(const std::string& statement) {
  MYSQL* mysql = connected_handle(handle_->mysql, handle_->connected);
  ++statements_sent_;
  if (mysql_real_query(mysql, statement.data(), statement.size()) != 0)
    throw_statement_error(mysql);
  // Rows are taken one by one as they arrive: a whole table read for the snapshot is not held
  // twice.
  MYSQL_RES* result = mysql_use_result(mysql);
  if (result == nullptr) {
    if (mysql_field_count(mysql) != 0)
      throw_statement_error(mysql);
    throw DatabaseError("The statement returned no rows");
  }
  ResultSet set;
  const unsigned int field_count = mysql_num_fields(result);
  MYSQL_FIELD* fields = mysql_fetch_fields(result);
  for (unsigned int f = 0; f < field_count; ++f)
    set.column_names.emplace_back(fields[f].name);
  while (MYSQL_ROW row = mysql_fetch_row(result)) {
    const unsigned long* lengths = mysql_fetch_lengths(result);
    ResultSet::Row& cells = set.rows.emplace_back(field_count);
    for (unsigned int f = 0; f < field_count; ++f) {
      if (row[f] != nullptr)
        cells[f].emplace(row[f], lengths[f]);
    }
  }
  // A failure while the rows arrive (the connection lost midway) shows once they stop.
  const bool failed = mysql_errno(mysql) != 0;
  mysql_free_result(result);
  if (failed)
    throw_statement_error(mysql);
  return set;
}

void Connection::execute(const std::string& statement) {
  MYSQL* mysql = connected_handle(handle_->mysql, handle_->connected);
  ++statements_sent_;
  if (mysql_real_query(mysql, statement.data(), statement.size()) != 0)
    throw_statement_error(mysql);
  if (MYSQL_RES* result = mysql_store_result(mysql))
    mysql_free_result(result);
}

Transaction::Transaction(Connection& connection) : connection_(connection) {}

Transaction::~Transaction() {
  connection_.snapshot_.reset();
  if (active_ && connection_.handle_->connected) {
    // Nothing to keep or undo in a read-only transaction; a failure here changes nothing.
    static constexpr char kCommit[] = "COMMIT";
    ++connection_.statements_sent_;
    mysql_real_query(connection_.handle_->mysql, kCommit, sizeof kCommit - 1);
  }
}

void Transaction::start() {
  connection_.execute("START TRANSACTION READ ONLY, WITH CONSISTENT SNAPSHOT");
  active_ = true;
  connection_.snapshot_ = std::make_unique<Snapshot>(connection_);
}

void Transaction::commit() {
  connection_.snapshot_.reset();
  active_ = false;
  connection_.execute("COMMIT");
}

Query::Query(Connection& connection) : connection_(connection) {}

void Query::close() {
  active_ = false;
  result_.reset();
  position_ = 0;
}

void Query::set_statement(Statement statement) {
  close();
  statement_ = std::move(statement);
  joined_lines_.clear();
  const std::string& text = statement_.text();
  // Two single-byte searches: much faster than one search for either byte.
  if (text.find('\r') == std::string::npos && text.find('\n') == std::string::npos)
    return;
  // Every CR, LF or CRLF ends a line; a line end at the very end starts no new line.
  joined_lines_.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\r' || c == '\n') {
      joined_lines_ += '\n';
      if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
        ++i;
    } else {
      joined_lines_ += c;
    }
  }
  if (joined_lines_.back() == '\n')
    joined_lines_.pop_back();
}

const std::string& Query::lines() const {
  return joined_lines_.empty() ? statement_.text() : joined_lines_;
}

std::string Query::sql_text() const {
  return statement_.text().empty() ? std::string() : lines() + '\n';
}

void Query::open() {
  close();
  // Empty lines in front are not sent.
  const std::string& all_lines = lines();
  const std::size_t first = all_lines.find_first_not_of('\n');
  std::string without_leading;
  if (first != 0 && first != std::string::npos)
    without_leading = all_lines.substr(first);
  const std::string& statement = first == 0 ? all_lines : without_leading;
  if (Snapshot* snapshot = connection_.snapshot())
    result_ = snapshot->answer(statement_, statement);
  else
    result_ = std::make_shared<const ResultSet>(connection_.select(statement));
  active_ = true;
  position_ = 0;
}

void Query::first() {
  position_ = 0;
}

void Query::last() {
  const std::size_t count = result_ ? result_->rows.size() : 0;
  position_ = count == 0 ? 0 : count - 1;
}

void Query::next() {
  if (!eof())
    ++position_;
}

bool Query::eof() const {
  return !result_ || position_ >= result_->rows.size();
}

std::int64_t Query::record_count() const {
  return result_ ? static_cast<std::int64_t>(result_->rows.size()) : 0;
}

const std::optional<std::string>* Query::current_cell(const std::string& name) const {
  if (!active_)
    throw DatabaseError("Operation cannot be performed on an inactive dataset");
  const StringList& columns = result_->column_names;
  for (std::size_t f = 0; f < columns.size(); ++f) {
    if (equals_ci(columns[f], name))
      return position_ < result_->rows.size() ? &result_->rows[position_][f] : nullptr;
  }
  throw DatabaseError("Field not found : \"" + name + "\"");
}

std::string Query::field_text(const std::string& name) const {
  const std::optional<std::string>* cell = current_cell(name);
  return (cell != nullptr && cell->has_value()) ? **cell : std::string();
}

bool Query::field_bool(const std::string& name) const {
  const std::string text = trim(field_text(name));
  if (text.empty())
    return false;
  if (equals_ci(text, "true"))
    return true;
  if (equals_ci(text, "false"))
    return false;
  return to_integer(text) != 0;
}

}  // namespace talmo
