#include <signal.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>

#include "tests/support/subprocess.h"
#include "tests/support/test_support.h"

namespace talmo::testing {

std::string place_tool(const std::string& dir) {
  namespace fs = std::filesystem;
  const fs::path executable = fs::path(dir) / "talmo_software";
  if (!fs::exists(executable)) {
    fs::copy_file(TALMO_EXECUTABLE, executable);
    fs::permissions(executable, fs::perms::owner_all | fs::perms::group_read |
                                    fs::perms::group_exec | fs::perms::others_read |
                                    fs::perms::others_exec);
  }
  return executable.string();
}

RunResult run_tool(const std::string& dir, const std::string& stdin_text,
                   const std::vector<std::string>& args, const Environment& environment) {
  std::vector<std::string> argv = {place_tool(dir)};
  argv.insert(argv.end(), args.begin(), args.end());
  Environment additions;
  if (PrivateMariaDb::running())
    additions["MYSQL_TCP_PORT"] = std::to_string(PrivateMariaDb::instance().port());
  for (const auto& [name, value] : environment)
    additions[name] = value;
  return run_process(argv, dir, stdin_text, additions, 120);
}

namespace {

// A shell word that stands for exactly `text`.
std::string quoted(const std::string& text) {
  std::string result = "'";
  for (char c : text)
    result += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return result + "'";
}

}  // namespace

BackgroundTool::BackgroundTool(const std::string& dir, const std::string& input,
                               const Environment& environment)
    : dir_(dir) {
  place_tool(dir);
  std::string command = "exec env";
  if (PrivateMariaDb::running())
    command += " MYSQL_TCP_PORT=" + std::to_string(PrivateMariaDb::instance().port());
  for (const auto& [name, value] : environment)
    command += " " + quoted(name + "=" + value);
  command += " " + quoted(dir + "/talmo_software") + " " + input + " >" + quoted(dir + "/out.txt") +
             " 2>" + quoted(dir + "/err.txt");
  pid_ =
      start_process({"/bin/sh", "-c", "cd " + quoted(dir) + " && " + command}, dir + "/shell.log");
}

BackgroundTool::~BackgroundTool() {
  if (!exit_code_) {
    ::kill(pid_, SIGKILL);
    wait_process(pid_, 10);
  }
}

bool BackgroundTool::wait_for_output(const std::string& text, int seconds) const {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
  while (std::chrono::steady_clock::now() < deadline) {
    if (out().find(text) != std::string::npos)
      return true;
    if (poll_process(pid_))
      return out().find(text) != std::string::npos;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return false;
}

void BackgroundTool::send(int signal) const {
  ::kill(pid_, signal);
}

int BackgroundTool::wait(int seconds) {
  if (!exit_code_)
    exit_code_ = wait_process(pid_, seconds);
  return *exit_code_;
}

std::string BackgroundTool::out() const {
  return file_exists(dir_ + "/out.txt") ? read_file(dir_ + "/out.txt") : "";
}

}  // namespace talmo::testing
