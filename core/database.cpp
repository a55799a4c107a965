#include "core/database.h"

#include <errmsg.h>
#include <mysql.h>
#include <mysqld_error.h>

#include <utility>

#include "core/errors.h"
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

Connection::Connection() : handle_(std::make_unique<Handle>()) {}

Connection::~Connection() {
  if (handle_->mysql != nullptr)
    mysql_close(handle_->mysql);
}

void Connection::open(const std::string& host, const std::string& user, const std::string& password,
                      const std::string& database) {
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
}

bool Connection::connected() const {
  return handle_->connected;
}

Query::Query(Connection& connection) : connection_(connection) {}

void Query::close() {
  active_ = false;
  column_names_.clear();
  rows_.clear();
  position_ = 0;
}

void Query::set_statement(Statement statement) {
  close();
  statement_ = std::move(statement);
  const std::string& text = statement_.text();
  sql_lines_.clear();
  std::string line;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\r' || c == '\n') {
      sql_lines_.push_back(line);
      line.clear();
      if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
        ++i;
    } else {
      line += c;
    }
  }
  if (!line.empty())
    sql_lines_.push_back(line);
}

std::string Query::sql_text() const {
  std::string text;
  for (const std::string& line : sql_lines_)
    text += line + "\n";
  return text;
}

void Query::open() {
  close();
  MYSQL* mysql = connection_.handle_->mysql;
  if (mysql == nullptr || !connection_.handle_->connected) {
    throw DatabaseError("Database connect string (DatabaseName) not filled in!");
  }
  std::string statement;
  for (const std::string& line : sql_lines_) {
    if (!statement.empty())
      statement += '\n';
    statement += line;
  }
  if (mysql_real_query(mysql, statement.data(), statement.size()) != 0)
    throw_statement_error(mysql);
  MYSQL_RES* result = mysql_store_result(mysql);
  if (result == nullptr) {
    if (mysql_field_count(mysql) != 0)
      throw_statement_error(mysql);
    throw DatabaseError("The statement returned no rows");
  }
  const unsigned int field_count = mysql_num_fields(result);
  MYSQL_FIELD* fields = mysql_fetch_fields(result);
  for (unsigned int f = 0; f < field_count; ++f)
    column_names_.emplace_back(fields[f].name);
  while (MYSQL_ROW row = mysql_fetch_row(result)) {
    const unsigned long* lengths = mysql_fetch_lengths(result);
    std::vector<std::optional<std::string>> cells(field_count);
    for (unsigned int f = 0; f < field_count; ++f) {
      if (row[f] != nullptr)
        cells[f] = std::string(row[f], lengths[f]);
    }
    rows_.push_back(std::move(cells));
  }
  mysql_free_result(result);
  active_ = true;
  position_ = 0;
}

void Query::first() {
  position_ = 0;
}

void Query::last() {
  position_ = rows_.empty() ? 0 : rows_.size() - 1;
}

void Query::next() {
  if (position_ < rows_.size())
    ++position_;
}

bool Query::eof() const {
  return position_ >= rows_.size();
}

std::int64_t Query::record_count() const {
  return static_cast<std::int64_t>(rows_.size());
}

const std::optional<std::string>* Query::current_cell(const std::string& name) const {
  if (!active_)
    throw DatabaseError("Operation cannot be performed on an inactive dataset");
  for (std::size_t f = 0; f < column_names_.size(); ++f) {
    if (equals_ci(column_names_[f], name)) {
      return position_ < rows_.size() ? &rows_[position_][f] : nullptr;
    }
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
