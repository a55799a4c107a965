#pragma once

// Helpers shared by every test program: a private MariaDB server, temporary directories, file
// access, captured console output, running the built tool and comparing long texts.

#include <sys/types.h>
#include <unistd.h>

#include <map>
#include <optional>
#include <sstream>
#include <streambuf>
#include <string>
#include <vector>

#include "core/database.h"

namespace talmo::testing {

// Variables added to (or replacing those of) a child process's inherited environment.
using Environment = std::map<std::string, std::string>;

// One private, throwaway MariaDB server per test process, listening on 127.0.0.1 at a free port
// and on a socket in its own temporary directory. It holds the database uj_db and the shop's
// login exprtr / "T7d3wq415M" (from '%' and 'localhost'). Stopped and deleted at process end.
class PrivateMariaDb {
 public:
  // The process's server, started on first use (a few seconds). Call it before the first
  // Connection is opened: it sets MYSQL_TCP_PORT, which the client library reads only once, when
  // it initialises. Throws std::runtime_error with the server's error log tail if it cannot start.
  static PrivateMariaDb& instance();
  // Whether instance() has started the server in this process.
  static bool running();

  int port() const { return port_; }
  std::string socket_path() const { return directory_ + "/sock"; }

  // Runs `sql` as root in uj_db through the mariadb command-line client (UTF-8 on the wire).
  // Throws std::runtime_error with the client's error output when any statement fails.
  void run_sql(const std::string& sql) const;
  void run_sql_file(const std::string& path) const;
  // Drops and recreates uj_db and loads db/schema.sql into it: every table empty.
  void reset_database() const;

  // Sends `signal` to the server process: SIGSTOP freezes it, SIGCONT thaws it, SIGKILL kills it.
  void signal_server(int signal) const;
  // Starts the server again after it was killed, on a new port (MYSQL_TCP_PORT follows). Tables
  // written shortly before the kill may have lost rows: reload what a test needs.
  void restart();

 private:
  PrivateMariaDb();
  ~PrivateMariaDb();
  PrivateMariaDb(const PrivateMariaDb&) = delete;
  PrivateMariaDb& operator=(const PrivateMariaDb&) = delete;

  void start();
  void stop();
  // Starts mariadbd on a fresh port; false when the port was taken meanwhile.
  bool start_server();
  void run_client(const std::string& sql, const std::string& database) const;

  std::string directory_;
  int port_ = 0;
  pid_t pid_ = -1;
  pid_t owner_ = ::getpid();
};

// The tool's own connection, logged in as exprtr to 127.0.0.1 / uj_db of the private server, and
// a cursor on it: the way integration tests reach the database. Starts the server first, so it
// may be a test's first database object. Throws DatabaseError when the login fails.
struct DbSession {
  DbSession();

  PrivateMariaDb& server;
  Connection connection;
  Query query;
};

// A fresh directory under $TMPDIR (or /tmp), removed with everything in it on destruction.
class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  // The directory's absolute path, without a trailing "/".
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

// The whole file, byte for byte; throws std::runtime_error when it cannot be read.
std::string read_file(const std::string& path);
// Replaces the file with exactly `content`, creating missing parent directories; throws on failure.
void write_file(const std::string& path, const std::string& content);
// The permission bits of the file at `path` (links followed).
mode_t mode_of(const std::string& path);
// How many entries the directory holds.
std::size_t entries_in(const std::string& dir);
// Whether anything (file, directory, link) exists at `path`.
bool file_exists(const std::string& path);
// The shop's default site settings, as the expected files and texts of the tests hold them.
inline constexpr const char* kDefaultHostHu = "www.kelvor.hu";
inline constexpr const char* kDefaultHostSk = "www.kelvor.sk";
inline constexpr const char* kDefaultHostCz = "www.kelvor.cz";
inline constexpr const char* kDefaultArticleBase = "https://www.kelvor.hu";
// Whether the build was configured with those defaults (the CMake cache variables
// TALMO_SITE_HOST_HU, TALMO_SITE_HOST_SK, TALMO_SITE_HOST_CZ and TALMO_HU_ARTICLE_BASE).
bool built_with_default_site();
// The shop's login as a first run writes it into config.dat.
inline constexpr const char* kDefaultConfig = "127.0.0.1\n3306\nexprtr\nT7d3wq415M\nuj_db\n";
// Sets `dir` up as the tool's directory in the shop: config.dat with the default login (which
// reaches the private server) and the folders export/hu and export/sk.
void prepare_run_directory(const std::string& dir);
// The path of `relative` inside the source tree (TALMO_SOURCE_DIR + "/" + relative).
std::string source_path(const std::string& relative);

// Collects everything written to std::cout while alive; the console is restored on destruction.
class CapturedStdout {
 public:
  CapturedStdout();
  ~CapturedStdout();
  CapturedStdout(const CapturedStdout&) = delete;
  CapturedStdout& operator=(const CapturedStdout&) = delete;

  std::string text() const { return buffer_.str(); }

 private:
  std::ostringstream buffer_;
  std::streambuf* previous_;
};

// What a child process did. `exit_code` is its exit status, or 128 + the signal that ended it.
struct RunResult {
  int exit_code = -1;
  std::string out;
  std::string err;
  bool timed_out = false;
};

// Copies the built tool to dir/talmo_software unless it is there; returns that path.
std::string place_tool(const std::string& dir);

// Runs the built tool as dir/talmo_software (copied there unless present) with `dir` as working
// directory, `stdin_text` as its whole input, and MYSQL_TCP_PORT pointing at the private server
// when that runs; `environment` is applied last. Killed after 120 seconds.
RunResult run_tool(const std::string& dir, const std::string& stdin_text,
                   const std::vector<std::string>& args = {}, const Environment& environment = {});

// The built tool running in the background in `dir`, as a scheduler would start it: standard
// input from the shell redirection `input` (e.g. "< answers.txt" or "<&-"), its outputs into
// dir/out.txt and dir/err.txt, MYSQL_TCP_PORT pointing at the private server. Killed when the
// object goes out of scope while it still runs.
class BackgroundTool {
 public:
  BackgroundTool(const std::string& dir, const std::string& input, const Environment& environment);
  ~BackgroundTool();
  BackgroundTool(const BackgroundTool&) = delete;
  BackgroundTool& operator=(const BackgroundTool&) = delete;

  // Waits until standard output holds `text` (true), or the tool ended or `seconds` passed.
  bool wait_for_output(const std::string& text, int seconds) const;
  void send(int signal) const;
  // The exit code (128 + signal when killed) once ended; killed after `seconds`.
  int wait(int seconds);
  std::string out() const;

 private:
  std::string dir_;
  pid_t pid_ = -1;
  std::optional<int> exit_code_;
};

// Replaces every clock reading "hh:nn:ss.z" (two figures, ":", two, ":", two, ".", one to three
// figures) by "<time>", so outputs with elapsed times can be compared whole.
std::string mask_times(const std::string& text);

// Fails the calling test when the texts differ, naming the first differing line and column with
// both versions of that line ("\r", "\t" and other control bytes made visible). The failure is
// reported at the caller's line (clang 14 has no std::source_location, hence the builtins).
void expect_same_text(const std::string& expected, const std::string& actual,
                      const char* file = __builtin_FILE(), int line = __builtin_LINE());

}  // namespace talmo::testing

// Skips the calling test, with a message saying why, in a build configured with other site
// settings: what it expects names the shop's default hosts.
#define TALMO_NEEDS_DEFAULT_SITE()                                                             \
  if (!::talmo::testing::built_with_default_site())                                            \
  GTEST_SKIP() << "needs the shop's default site settings (TALMO_SITE_HOST_HU=www.kelvor.hu, " \
                  "TALMO_SITE_HOST_SK=www.kelvor.sk, TALMO_SITE_HOST_CZ=www.kelvor.cz, "       \
                  "TALMO_HU_ARTICLE_BASE=https://www.kelvor.hu)"
