#include "tests/support/subprocess.h"

#include <fcntl.h>
#include <poll.h>
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

// A write that reports a reader gone away as EPIPE instead of killing us with SIGPIPE.
ssize_t write_without_sigpipe(int fd, const char* data, std::size_t size) {
  sigset_t pipe_signal, previous;
  ::sigemptyset(&pipe_signal);
  ::sigaddset(&pipe_signal, SIGPIPE);
  ::pthread_sigmask(SIG_BLOCK, &pipe_signal, &previous);
  const ssize_t written = ::write(fd, data, size);
  const int saved = errno;
  if (written < 0 && saved == EPIPE) {
    const timespec no_wait{0, 0};
    ::sigtimedwait(&pipe_signal, nullptr, &no_wait);
  }
  ::pthread_sigmask(SIG_SETMASK, &previous, nullptr);
  errno = saved;
  return written;
}

void close_fd(int& fd) {
  if (fd >= 0)
    ::close(fd);
  fd = -1;
}

}  // namespace

RunResult run_process(const std::vector<std::string>& argv, const std::string& cwd,
                      const std::string& stdin_text, const Environment& additions,
                      int timeout_seconds) {
  int in[2], out[2], err[2];
  if (::pipe2(in, O_CLOEXEC) != 0 || ::pipe2(out, O_CLOEXEC) != 0 || ::pipe2(err, O_CLOEXEC) != 0)
    throw_errno("pipe");
  const pid_t pid = spawn(argv, cwd, additions, in[0], out[1], err[1]);
  close_fd(in[0]);
  close_fd(out[1]);
  close_fd(err[1]);
  ::fcntl(in[1], F_SETFL, O_NONBLOCK);
  if (stdin_text.empty())
    close_fd(in[1]);

  RunResult result;
  const Clock::time_point deadline = Clock::now() + std::chrono::seconds(timeout_seconds);
  std::size_t sent = 0;
  while (out[0] >= 0 || err[0] >= 0) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    if (left.count() <= 0) {
      ::kill(pid, SIGKILL);
      result.timed_out = true;
      break;
    }
    pollfd fds[3] = {{out[0], POLLIN, 0}, {err[0], POLLIN, 0}, {in[1], POLLOUT, 0}};
    if (::poll(fds, 3, static_cast<int>(left.count())) < 0 && errno != EINTR)
      throw_errno("poll");
    for (int i = 0; i < 2; ++i) {
      int& fd = i == 0 ? out[0] : err[0];
      if (fd < 0 || fds[i].revents == 0)
        continue;
      char buffer[65536];
      const ssize_t got = ::read(fd, buffer, sizeof buffer);
      if (got > 0)
        (i == 0 ? result.out : result.err).append(buffer, static_cast<std::size_t>(got));
      else if (got == 0 || errno != EINTR)
        close_fd(fd);
    }
    if (in[1] >= 0 && fds[2].revents != 0) {
      const ssize_t put =
          write_without_sigpipe(in[1], stdin_text.data() + sent, stdin_text.size() - sent);
      if (put > 0)
        sent += static_cast<std::size_t>(put);
      if (sent == stdin_text.size() || (put < 0 && errno != EAGAIN && errno != EINTR))
        close_fd(in[1]);
    }
  }
  close_fd(in[1]);
  close_fd(out[0]);
  close_fd(err[0]);
  const auto left = std::chrono::duration_cast<std::chrono::seconds>(deadline - Clock::now());
  result.exit_code = wait_process(pid, static_cast<int>(std::max<long>(left.count(), 0)));
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
  const Clock::time_point deadline = Clock::now() + std::chrono::seconds(timeout_seconds);
  std::chrono::milliseconds pause(1);
  while (Clock::now() < deadline) {
    if (const std::optional<int> code = poll_process(pid))
      return *code;
    std::this_thread::sleep_for(pause);
    pause = std::min(pause * 2, std::chrono::milliseconds(20));
  }
  ::kill(pid, SIGKILL);
  int status = 0;
  while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
  }
  return decode(status);
}

}  // namespace talmo::testing
