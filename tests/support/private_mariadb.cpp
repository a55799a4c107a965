#include <netinet/in.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <thread>

#include "tests/support/subprocess.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

bool server_running = false;
std::string start_failure;

const char kCreateDatabase[] =
    "CREATE DATABASE uj_db CHARACTER SET utf8mb4 COLLATE utf8mb4_general_ci;\n";
const char kCreateLogin[] =
    "CREATE USER 'exprtr'@'%' IDENTIFIED BY 'T7d3wq415M';\n"
    "CREATE USER 'exprtr'@'localhost' IDENTIFIED BY 'T7d3wq415M';\n"
    "GRANT SELECT ON uj_db.* TO 'exprtr'@'%';\n"
    "GRANT SELECT ON uj_db.* TO 'exprtr'@'localhost';\n";

// The last lines of a log, enough to see why a start failed.
std::string tail(const std::string& text) {
  std::size_t start = text.size();
  for (int lines = 0; lines <= 20 && start != std::string::npos && start > 0; ++lines)
    start = text.rfind('\n', start - 1);
  return start == std::string::npos ? text : text.substr(start + 1);
}

// A port nobody listens on right now; another process may still take it before the server does.
int free_port() {
  const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t length = sizeof address;
  if (fd < 0 || ::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
      ::getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length) != 0) {
    if (fd >= 0)
      ::close(fd);
    throw std::runtime_error("no free port on 127.0.0.1");
  }
  ::close(fd);
  return ntohs(address.sin_port);
}

std::string log_text(const std::string& path, std::size_t from) {
  if (!file_exists(path))
    return "";
  const std::string text = read_file(path);
  return from < text.size() ? text.substr(from) : "";
}

}  // namespace

PrivateMariaDb& PrivateMariaDb::instance() {
  // A server that failed once is not retried by every later test.
  if (!start_failure.empty())
    throw std::runtime_error(start_failure);
  try {
    static PrivateMariaDb server;
    return server;
  } catch (const std::exception& error) {
    start_failure = error.what();
    throw;
  }
}

bool PrivateMariaDb::running() {
  return server_running;
}

PrivateMariaDb::PrivateMariaDb() {
  try {
    start();
  } catch (...) {
    stop();
    throw;
  }
  server_running = true;
}

PrivateMariaDb::~PrivateMariaDb() {
  server_running = false;
  // A forked child that calls exit() (a death test) must leave its parent's server alone.
  if (::getpid() == owner_)
    stop();
}

void PrivateMariaDb::start() {
  // Under /tmp rather than $TMPDIR: a socket path must stay below about 100 bytes.
  char pattern[] = "/tmp/talmo-mariadb-XXXXXX";
  if (::mkdtemp(pattern) == nullptr)
    throw std::runtime_error("cannot create a directory for the test database server");
  directory_ = pattern;
  // Its own folder for temporary tables: servers sharing /tmp have clashed over file names.
  std::filesystem::create_directory(directory_ + "/tmp");
  const RunResult install =
      run_process({"mariadb-install-db", "--no-defaults", "--datadir=" + directory_ + "/data",
                   "--user=root", "--auth-root-authentication-method=socket", "--skip-test-db",
                   "--tmpdir=" + directory_ + "/tmp"},
                  "", "", {}, 120);
  if (install.exit_code != 0) {
    throw std::runtime_error("mariadb-install-db failed (exit " +
                             std::to_string(install.exit_code) + "):\n" +
                             tail(install.out + install.err));
  }
  for (int attempt = 1; !start_server(); ++attempt) {
    if (attempt == 3)
      throw std::runtime_error("mariadbd found no free port in three attempts");
  }
  run_client(std::string(kCreateDatabase) + kCreateLogin, "");
  ::setenv("MYSQL_TCP_PORT", std::to_string(port_).c_str(), 1);
}

bool PrivateMariaDb::start_server() {
  const std::string log = directory_ + "/error.log";
  const std::size_t seen = log_text(log, 0).size();
  port_ = free_port();
  // No --skip-name-resolve: like the shop's server, it names a login from 127.0.0.1
  // 'user'@'localhost' (the loopback address needs no DNS lookup).
  pid_ = start_process(
      {"mariadbd", "--no-defaults", "--user=root", "--datadir=" + directory_ + "/data",
       "--socket=" + socket_path(), "--port=" + std::to_string(port_), "--bind-address=127.0.0.1",
       "--pid-file=" + directory_ + "/mariadbd.pid", "--log-error=" + log,
       "--tmpdir=" + directory_ + "/tmp", "--innodb-buffer-pool-size=32M",
       "--innodb-flush-log-at-trx-commit=0", "--innodb-doublewrite=0"},
      directory_ + "/mariadbd.out");
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  while (std::chrono::steady_clock::now() < deadline) {
    const std::string text = log_text(log, seen);
    if (text.find("ready for connections") != std::string::npos)
      return true;
    if (const std::optional<int> code = poll_process(pid_)) {
      pid_ = -1;
      if (text.find("Address already in use") != std::string::npos)
        return false;
      throw std::runtime_error("mariadbd stopped (exit " + std::to_string(*code) +
                               ") while starting:\n" + tail(text));
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  throw std::runtime_error("mariadbd not ready after 30 seconds:\n" + tail(log_text(log, seen)));
}

void PrivateMariaDb::stop() {
  if (pid_ > 0) {
    ::kill(pid_, SIGTERM);
    wait_process(pid_, 60);
    pid_ = -1;
  }
  if (!directory_.empty()) {
    std::error_code ignored;
    std::filesystem::remove_all(directory_, ignored);
    directory_.clear();
  }
}

void PrivateMariaDb::run_client(const std::string& sql, const std::string& database) const {
  std::vector<std::string> argv = {"mariadb", "--no-defaults", "--default-character-set=utf8mb4",
                                   "-uroot", "--socket=" + socket_path()};
  if (!database.empty())
    argv.push_back(database);
  const RunResult result = run_process(argv, "", sql, {}, 120);
  if (result.exit_code != 0) {
    throw std::runtime_error("mariadb client failed (exit " + std::to_string(result.exit_code) +
                             "): " + result.err + "while running: " + sql.substr(0, 300));
  }
}

void PrivateMariaDb::run_sql(const std::string& sql) const {
  run_client(sql, "uj_db");
}

void PrivateMariaDb::run_sql_file(const std::string& path) const {
  run_client(read_file(path), "uj_db");
}

void PrivateMariaDb::reset_database() const {
  run_client(std::string("DROP DATABASE IF EXISTS uj_db;\n") + kCreateDatabase, "");
  run_sql_file(source_path("db/schema.sql"));
}

void PrivateMariaDb::signal_server(int signal) const {
  if (pid_ > 0)
    ::kill(pid_, signal);
}

void PrivateMariaDb::restart() {
  if (pid_ > 0) {
    ::kill(pid_, SIGKILL);
    wait_process(pid_, 60);
    pid_ = -1;
  }
  for (int attempt = 1; !start_server(); ++attempt) {
    if (attempt == 3)
      throw std::runtime_error("mariadbd found no free port in three attempts");
  }
  ::setenv("MYSQL_TCP_PORT", std::to_string(port_).c_str(), 1);
}

DbSession::DbSession() : server(PrivateMariaDb::instance()), query(connection) {
  connection.open("127.0.0.1", "exprtr", "T7d3wq415M", "uj_db");
}

}  // namespace talmo::testing
