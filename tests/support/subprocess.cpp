#include "tests/support/subprocess.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <system_error>
#include <thread>

extern char** environ;

namespace talmo::testing {
namespace {

using Clock = std::chrono::steady_clock;

[[noreturn]] void throw_errno(const std::string& what) {
  throw std::system_error(errno, std::generic_category(), what);
}

// mariadbd lives in /usr/sbin, which a test runner's PATH may lack.
std::string find_program(const std::string& name) {
  if (name.find('/') != std::string::npos)
    return name;
  const char* path = std::getenv("PATH");
  const std::string dirs = std::string(path != nullptr ? path : "") +
                           ":/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin";
  std::size_t start = 0;
  while (start <= dirs.size()) {
    std::size_t end = dirs.find(':', start);
    if (end == std::string::npos)
      end = dirs.size();
    const std::string candidate = dirs.substr(start, end - start) + "/" + name;
    if (end > start && ::access(candidate.c_str(), X_OK) == 0)
      return candidate;
    start = end + 1;
  }
  return name;
}

std::vector<std::string> environment_with(const Environment& additions) {
  Environment merged;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string text = *entry;
    const std::size_t equals = text.find('=');
    if (equals != std::string::npos)
      merged[text.substr(0, equals)] = text.substr(equals + 1);
  }
  for (const auto& [name, value] : additions)
    merged[name] = value;
  std::vector<std::string> result;
  for (const auto& [name, value] : merged)
    result.push_back(name + "=" + value);
  return result;
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
  std::vector<char*> result;
  for (std::string& text : texts)
    result.push_back(text.data());
  result.push_back(nullptr);
  return result;
}

// Moves `fd` onto `target` in the child; only async-signal-safe calls after fork.
void place(int fd, int target) {
  if (fd == target)
    ::fcntl(fd, F_SETFD, 0);
  else
    ::dup2(fd, target);
}

// Forks and executes; the child's standard streams become `in`, `out` and `err`.
pid_t spawn(const std::vector<std::string>& argv, const std::string& cwd,
            const Environment& additions, int in, int out, int err) {
  std::vector<std::string> args = argv;
  args[0] = find_program(argv[0]);
  std::vector<std::string> env = environment_with(additions);
  std::vector<char*> arg_pointers = pointers(args);
  std::vector<char*> env_pointers = pointers(env);
  const std::string failure = "cannot run " + args[0] + "\n";
  const pid_t parent = ::getpid();
  const pid_t pid = ::fork();
  if (pid < 0)
    throw_errno("fork");
  if (pid == 0) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
      ::_exit(127);
    place(in, 0);
    place(out, 1);
    place(err, 2);
    ::close_range(3, ~0U, 0);
    ::signal(SIGPIPE, SIG_DFL);
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    if (cwd.empty() || ::chdir(cwd.c_str()) == 0)
      ::execve(args[0].c_str(), arg_pointers.data(), env_pointers.data());
    [[maybe_unused]] const ssize_t ignored = ::write(2, failure.data(), failure.size());
    ::_exit(127);
  }
  return pid;
}

int decode(int status) {
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

// A fresh unnamed temporary file for a child's input or output; -1 when none can be made.
int temporary_file() {
  const char* base = std::getenv("TMPDIR");
  return ::open(base != nullptr && *base != '\0' ? base : "/tmp", O_TMPFILE | O_RDWR | O_CLOEXEC,
                0600);
}

std::string read_all(int fd) {
  std::string text;
  char buffer[65536];
  ::lseek(fd, 0, SEEK_SET);
  for (ssize_t got; (got = ::read(fd, buffer, sizeof buffer)) != 0;) {
    if (got > 0)
      text.append(buffer, static_cast<std::size_t>(got));
    else if (errno != EINTR)
      break;
  }
  return text;
}

// Waits up to the deadline for `pid` to end; nullopt when it had to be killed.
std::optional<int> wait_until(pid_t pid, Clock::time_point deadline) {
  std::chrono::milliseconds pause(1);
  while (Clock::now() < deadline) {
    if (const std::optional<int> code = poll_process(pid))
      return code;
    std::this_thread::sleep_for(pause);
    pause = std::min(pause * 2, std::chrono::milliseconds(20));
  }
  return std::nullopt;
}

}  // namespace

RunResult run_process(const std::vector<std::string>& argv, const std::string& cwd,
                      const std::string& stdin_text, const Environment& additions,
                      int timeout_seconds) {
  // Files rather than pipes: the child never blocks on a full pipe and we never on a slow child.
  const int in = temporary_file(), out = temporary_file(), err = temporary_file();
  if (in < 0 || out < 0 || err < 0 ||
      ::write(in, stdin_text.data(), stdin_text.size()) != static_cast<ssize_t>(stdin_text.size()))
    throw_errno("temporary file for a child process");
  ::lseek(in, 0, SEEK_SET);
  const pid_t pid = spawn(argv, cwd, additions, in, out, err);
  RunResult result;
  const std::optional<int> code =
      wait_until(pid, Clock::now() + std::chrono::seconds(timeout_seconds));
  result.timed_out = !code;
  result.exit_code = code ? *code : wait_process(pid, 0);
  result.out = read_all(out);
  result.err = read_all(err);
  for (const int fd : {in, out, err})
    ::close(fd);
  return result;
}

pid_t start_process(const std::vector<std::string>& argv, const std::string& log_path) {
  const int in = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
  const int log = ::open(log_path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
  if (in < 0 || log < 0)
    throw_errno("open " + log_path);
  const pid_t pid = spawn(argv, "", {}, in, log, log);
  ::close(in);
  ::close(log);
  return pid;
}

std::optional<int> poll_process(pid_t pid) {
  int status = 0;
  if (::waitpid(pid, &status, WNOHANG) == pid)
    return decode(status);
  return std::nullopt;
}

int wait_process(pid_t pid, int timeout_seconds) {
  if (const std::optional<int> code =
          wait_until(pid, Clock::now() + std::chrono::seconds(timeout_seconds)))
    return *code;
  ::kill(pid, SIGKILL);
  int status = 0;
  while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
  }
  return decode(status);
}

}  // namespace talmo::testing
