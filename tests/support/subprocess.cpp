#include "tests/support/subprocess.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <thread>

namespace talmo::testing {
namespace {

// A fresh unnamed file holding `text`: a child never blocks on a full pipe, nor we on a child.
int temporary_file(const std::string& text = "") {
  const int fd = ::open("/tmp", O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
  if (fd < 0 || ::pwrite(fd, text.data(), text.size(), 0) != static_cast<ssize_t>(text.size()))
    throw std::system_error(errno, std::generic_category(), "temporary file");
  return fd;
}

std::string read_all(int fd) {
  std::string text(static_cast<std::size_t>(::lseek(fd, 0, SEEK_END)), '\0');
  const bool read = ::pread(fd, text.data(), text.size(), 0) == static_cast<ssize_t>(text.size());
  ::close(fd);
  return read ? text : throw std::runtime_error("cannot read a child's output");
}

// Copies the built tool into `dir` unless it is there; the environment it runs with there.
Environment place_tool(const std::string& dir, Environment environment) {
  if (!file_exists(dir + "/talmo_software"))
    std::filesystem::copy_file(TALMO_EXECUTABLE, dir + "/talmo_software");
  if (PrivateMariaDb::running())
    environment.emplace("MYSQL_TCP_PORT", std::to_string(PrivateMariaDb::instance().port()));
  return environment;
}

}  // namespace

pid_t spawn(const std::vector<std::string>& argv, const std::string& cwd,
            const Environment& additions, int in, int out, int err) {
  // env(1) sets the variables and looks the program up on PATH, also where mariadbd lives.
  const char* path = std::getenv("PATH");
  std::vector<std::string> texts = {"/usr/bin/env",
                                    "PATH=" + std::string(path ? path : "") + ":/usr/sbin:/sbin"};
  for (const auto& [name, value] : additions)
    texts.push_back(name + "=" + value);
  texts.insert(texts.end(), argv.begin(), argv.end());
  std::vector<char*> args;
  for (std::string& text : texts)
    args.push_back(text.data());
  args.push_back(nullptr);
  const pid_t parent = ::getpid();
  const pid_t pid = ::fork();
  if (pid < 0)
    throw std::system_error(errno, std::generic_category(), "fork");
  if (pid == 0) {  // only async-signal-safe calls from here on
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
      ::_exit(127);
    int fds[] = {in, out, err};
    for (int& fd : fds)
      fd = fd < 0 ? ::open("/dev/null", O_RDWR | O_CLOEXEC) : ::fcntl(fd, F_DUPFD_CLOEXEC, 10);
    for (int target = 0; target < 3; ++target)
      ::dup2(fds[target], target);
    ::close_range(3, ~0U, 0);
    ::signal(SIGPIPE, SIG_DFL);
    if (cwd.empty() || ::chdir(cwd.c_str()) == 0)
      ::execv(args[0], args.data());
    ::_exit(127);
  }
  return pid;
}

std::optional<int> wait_process(pid_t pid, int seconds) {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
  int status = 0;
  while (::waitpid(pid, &status, WNOHANG) == 0) {  // -1: already reaped
    if (std::chrono::steady_clock::now() >= deadline)
      return std::nullopt;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

int end_process(pid_t pid, int signal) {
  if (pid <= 0)
    return -1;
  if (const std::optional<int> code = wait_process(pid, 0))
    return *code;
  ::kill(pid, signal);
  return *wait_process(pid, 1 << 20);
}

RunResult run_process(const std::vector<std::string>& argv, const std::string& cwd,
                      const std::string& stdin_text, const Environment& additions,
                      int timeout_seconds) {
  const int in = temporary_file(stdin_text), out = temporary_file(), err = temporary_file();
  const pid_t pid = spawn(argv, cwd, additions, in, out, err);
  ::close(in);
  const std::optional<int> code = wait_process(pid, timeout_seconds);
  return {code ? *code : end_process(pid, SIGKILL), read_all(out), read_all(err), !code};
}

RunResult run_tool(const std::string& dir, const std::string& stdin_text,
                   const std::vector<std::string>& args, const Environment& environment) {
  std::vector<std::string> argv = {dir + "/talmo_software"};
  argv.insert(argv.end(), args.begin(), args.end());
  return run_process(argv, dir, stdin_text, place_tool(dir, environment), 120);
}

BackgroundTool::BackgroundTool(const std::string& dir, const std::string& input,
                               const Environment& environment)
    : dir_(dir) {
  pid_ = spawn({"/bin/sh", "-c", "exec ./talmo_software " + input + " >out.txt 2>err.txt"}, dir,
               place_tool(dir, environment), -1, -1, -1);
}

BackgroundTool::~BackgroundTool() {
  if (!exit_code_)
    end_process(pid_, SIGKILL);
}

bool BackgroundTool::wait_for_output(const std::string& text, int seconds) {
  for (int tries = 0; tries < seconds * 200 && !exit_code_; ++tries) {
    if (out().find(text) != std::string::npos)
      return true;
    exit_code_ = wait_process(pid_, 0);
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return out().find(text) != std::string::npos;
}

void BackgroundTool::send(int signal) const {
  ::kill(pid_, signal);
}

int BackgroundTool::wait(int seconds) {
  if (!exit_code_ && !(exit_code_ = wait_process(pid_, seconds)))
    exit_code_ = end_process(pid_, SIGKILL);
  return *exit_code_;
}

std::string BackgroundTool::out() const {
  return file_exists(dir_ + "/out.txt") ? read_file(dir_ + "/out.txt") : "";
}

}  // namespace talmo::testing
