#include <signal.h>

#include <filesystem>
#include <random>
#include <thread>

#include "tests/support/subprocess.h"
#include "tests/support/test_support.h"

namespace talmo::testing {

const std::string kCreateDatabase =
    "CREATE DATABASE uj_db CHARACTER SET utf8mb4 COLLATE utf8mb4_general_ci;\n";

PrivateMariaDb& PrivateMariaDb::instance() {
  static std::string failure;  // a server that failed once is not retried by every later test
  if (!failure.empty())
    throw std::runtime_error(failure);
  try {
    static PrivateMariaDb server;
    return server;
  } catch (const std::exception& error) {
    failure = error.what();
    throw;
  }
}

PrivateMariaDb::PrivateMariaDb() {
  // Under /tmp rather than $TMPDIR: a socket path must stay below about 100 bytes.
  char pattern[] = "/tmp/talmo-mariadb-XXXXXX";
  if (::mkdtemp(pattern) == nullptr)
    throw std::runtime_error("cannot create a directory for the test database server");
  directory_ = pattern;
  try {
    // Its own folder for temporary tables: servers sharing /tmp have clashed over file names.
    std::filesystem::create_directory(directory_ + "/tmp");
    const RunResult install =
        run_process({"mariadb-install-db", "--no-defaults", "--datadir=" + directory_ + "/data",
                     "--user=root", "--auth-root-authentication-method=socket", "--skip-test-db",
                     "--tmpdir=" + directory_ + "/tmp"},
                    "", "", {}, 120);
    if (install.exit_code != 0)
      throw std::runtime_error("mariadb-install-db failed:\n" + install.out + install.err);
    launch();
    run_client(kCreateDatabase +
               "CREATE USER 'exprtr'@'%' IDENTIFIED BY 'T7d3wq415M', "
               "'exprtr'@'localhost' IDENTIFIED BY 'T7d3wq415M';\n"
               "GRANT SELECT ON uj_db.* TO 'exprtr'@'%', 'exprtr'@'localhost';\n");
  } catch (...) {
    stop(SIGKILL);
    throw;
  }
  running_ = true;
}

PrivateMariaDb::~PrivateMariaDb() {
  running_ = false;
  if (::getpid() == owner_)  // a forked child (a death test) leaves its parent's server alone
    stop(SIGTERM);
}

void PrivateMariaDb::stop(int signal) {
  end_process(pid_, signal);
  pid_ = -1;
  std::error_code ignored;
  std::filesystem::remove_all(directory_, ignored);
}

void PrivateMariaDb::launch() {
  for (int attempt = 1;; ++attempt) {
    // Below the range the system hands out to clients; taken ports are retried below.
    std::random_device random;
    port_ = std::uniform_int_distribution(10000, 32000)(random);
    const std::string log = directory_ + "/error-" + std::to_string(++launches_) + ".log";
    write_file(log, "");
    // No --skip-name-resolve: like the shop's server, it names a login from 127.0.0.1
    // 'user'@'localhost'.
    pid_ = spawn(
        {"mariadbd", "--no-defaults", "--user=root", "--datadir=" + directory_ + "/data",
         "--socket=" + directory_ + "/sock", "--port=" + std::to_string(port_),
         "--bind-address=127.0.0.1", "--pid-file=" + directory_ + "/mariadbd.pid",
         "--log-error=" + log, "--tmpdir=" + directory_ + "/tmp", "--innodb-buffer-pool-size=32M",
         "--innodb-flush-log-at-trx-commit=0", "--innodb-doublewrite=0"},
        "", {}, -1, -1, -1);
    std::optional<int> ended;
    for (int waited = 0; waited < 3000 && !ended; ++waited) {  // 30 seconds
      if (read_file(log).find("ready for connections") != std::string::npos)
        return (void)::setenv("MYSQL_TCP_PORT", std::to_string(port_).c_str(), 1);
      ended = wait_process(pid_, 0);
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    end_process(pid_, SIGKILL);
    pid_ = -1;
    // Another server holds the port: try another one.
    if (read_file(log).find("Address already in use") == std::string::npos || attempt == 9)
      throw std::runtime_error("mariadbd did not start:\n" + read_file(log));
  }
}

void PrivateMariaDb::run_client(const std::string& sql) const {
  const RunResult result =
      run_process({"mariadb", "--no-defaults", "--default-character-set=utf8mb4", "-uroot",
                   "--socket=" + directory_ + "/sock"},
                  "", sql, {}, 120);
  if (result.exit_code != 0)
    throw std::runtime_error("mariadb client failed: " + result.err +
                             "while running: " + sql.substr(0, 300));
}

void PrivateMariaDb::reset_database() const {
  run_client("DROP DATABASE IF EXISTS uj_db;\n" + kCreateDatabase);
  run_sql_file(source_path("db/schema.sql"));
}

void PrivateMariaDb::load_sample_catalogue(const std::string& options) const {
  const RunResult sample = run_process(
      {"sh", "-c", "python3 " + source_path("tools/generate_sample_catalogue.py ") + options}, "",
      "", {}, 120);
  if (sample.exit_code != 0)
    throw std::runtime_error("the sample catalogue was not made: " + sample.err);
  reset_database();
  run_sql(sample.out);
}

void PrivateMariaDb::load_golden_catalogue() const {
  reset_database();
  run_sql_file(source_path("tests/e2e/fixtures/catalogue.sql"));
}

void PrivateMariaDb::signal_server(int signal) const {
  if (pid_ > 0)
    ::kill(pid_, signal);
}

void PrivateMariaDb::restart() {
  end_process(pid_, SIGKILL);
  launch();
}

}  // namespace talmo::testing
