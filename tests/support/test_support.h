#pragma once

// Helpers shared by every test program: a private MariaDB server, temporary directories, file
// access, captured console output, running the built tool and comparing long texts.

#include <unistd.h>

#include <iostream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "core/database.h"

namespace talmo::testing {

// Variables added to (or replacing those of) a child process's inherited environment.
using Environment = std::map<std::string, std::string>;

// The whole file; throws std::runtime_error when it cannot be read.
std::string read_file(const std::string& path);

// One throwaway MariaDB server per test process on 127.0.0.1 at a free port, with the database
// uj_db and the shop's login exprtr / "T7d3wq415M".
class PrivateMariaDb {
 public:
  // The process's server, started on first use, before the first Connection is opened (it sets
  // MYSQL_TCP_PORT). Throws std::runtime_error with the server's log if it cannot start.
  static PrivateMariaDb& instance();
  static bool running() { return running_; }
  int port() const { return port_; }

  // Runs `sql` as root in uj_db (UTF-8 on the wire); throws with the client's errors.
  void run_sql(const std::string& sql) const { run_client("USE uj_db;\n" + sql); }
  void run_sql_file(const std::string& path) const { run_sql(read_file(path)); }
  // Empties uj_db and loads tools/generate_sample_catalogue.py's catalogue made with `options`.
  void load_sample_catalogue(const std::string& options) const;
  // Empties uj_db and loads the golden catalogue (tests/e2e/fixtures/catalogue.sql).
  void load_golden_catalogue() const;
  // Drops and recreates uj_db from db/schema.sql: every table empty.
  void reset_database() const;
  // SIGSTOP freezes the server, SIGCONT thaws it, SIGKILL kills it.
  void signal_server(int signal) const;
  // Starts a killed server again on a new port (MYSQL_TCP_PORT follows); reload its tables.
  void restart();

 private:
  PrivateMariaDb();
  ~PrivateMariaDb();
  void launch();  // on another port when the one chosen was taken meanwhile
  void stop(int signal);
  void run_client(const std::string& sql) const;

  static inline bool running_ = false;
  std::string directory_;
  int port_ = 0;
  int launches_ = 0;
  pid_t pid_ = -1;
  pid_t owner_ = ::getpid();
};

// The tool's own connection as exprtr to the private server (started first), and a cursor.
struct DbSession {
  DbSession() : server(PrivateMariaDb::instance()), query(connection) {
    connection.open("127.0.0.1", "exprtr", "T7d3wq415M", "uj_db");
  }
  PrivateMariaDb& server;
  Connection connection;
  Query query;
};

// A fresh directory under $TMPDIR (or /tmp), removed with everything in it on destruction.
class TempDir {
 public:
  TempDir();
  ~TempDir();
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

// Replaces the file with `content`, creating missing parent directories; throws on failure.
void write_file(const std::string& path, const std::string& content);
mode_t mode_of(const std::string& path);         // the permission bits, links followed
std::size_t entries_in(const std::string& dir);  // how many entries the directory holds
bool file_exists(const std::string& path);       // anything: file, directory, link
// Whether the build has the shop's default site hosts, which the expected files name.
bool built_with_default_site();
// The shop's login as a first run writes it into config.dat.
inline constexpr const char* kDefaultConfig = "127.0.0.1\n3306\nexprtr\nT7d3wq415M\nuj_db\n";
// Sets `dir` up as the tool's directory: config.dat with the default login, export/hu, export/sk.
void prepare_run_directory(const std::string& dir);
// The path of `relative` inside the source tree.
inline std::string source_path(const std::string& relative) {
  return std::string(TALMO_SOURCE_DIR) + "/" + relative;
}

// Collects everything written to std::cout while alive.
class CapturedStdout {
 public:
  CapturedStdout() : previous_(std::cout.rdbuf(buffer_.rdbuf())) {}
  ~CapturedStdout() { std::cout.rdbuf(previous_); }
  std::string text() const { return buffer_.str(); }

 private:
  std::ostringstream buffer_;
  std::streambuf* previous_;
};

// What a child process did. `exit_code` is its exit status, or 128 + the signal that ended it.
struct RunResult {
  int exit_code = -1;
  std::string out, err;
  bool timed_out = false;
};

// Runs the built tool as dir/talmo_software (copied there unless present) in `dir` with
// `stdin_text` as its input, MYSQL_TCP_PORT at the private server, then `environment`.
RunResult run_tool(const std::string& dir, const std::string& stdin_text,
                   const std::vector<std::string>& args = {}, const Environment& environment = {});

// The built tool run in `dir` in the background, input from the shell redirection `input` (e.g.
// "<answers.txt" or "<&-"), outputs into dir/out.txt and err.txt. Killed on destruction.
class BackgroundTool {
 public:
  BackgroundTool(const std::string& dir, const std::string& input,
                 const Environment& environment = {});
  ~BackgroundTool();

  // Whether standard output holds `text` before the tool ends or `seconds` pass.
  bool wait_for_output(const std::string& text, int seconds);
  void send(int signal) const;
  // The exit code once ended; killed after `seconds`.
  int wait(int seconds);
  std::string out() const;

 private:
  std::string dir_;
  pid_t pid_ = -1;
  std::optional<int> exit_code_;
};

// Replaces every clock reading "hh:nn:ss.z" (1 to 3 figures after the dot) by "<time>".
std::string mask_times(const std::string& text);

// Fails the calling test (at the caller's line) when the texts differ, showing both versions
// of the first differing line, control bytes made visible.
void expect_same_text(const std::string& expected, const std::string& actual,
                      const char* file = __builtin_FILE(), int line = __builtin_LINE());

}  // namespace talmo::testing

// Skips the calling test in a build configured with other site hosts.
#define TALMO_NEEDS_DEFAULT_SITE()                  \
  if (!::talmo::testing::built_with_default_site()) \
  GTEST_SKIP() << "needs the shop's default site settings (www.kelvor.hu/.sk/.cz)"
