#pragma once

// Child processes of a test program, each killed when the test program dies first.

#include <optional>

#include "tests/support/test_support.h"

namespace talmo::testing {

// Runs `argv` (searched on PATH and in the sbin folders) in `cwd` ("" keeps ours) with
// `stdin_text` as its whole input, capturing both outputs. Killed after `timeout_seconds`.
RunResult run_process(const std::vector<std::string>& argv, const std::string& cwd,
                      const std::string& stdin_text, const Environment& additions,
                      int timeout_seconds);
// Starts `argv` like run_process with `in`, `out` and `err` (-1: /dev/null) as its streams.
pid_t spawn(const std::vector<std::string>& argv, const std::string& cwd,
            const Environment& additions, int in, int out, int err);
// The exit code (128 + signal when killed) once `pid` has ended within `seconds`, else nullopt.
std::optional<int> wait_process(pid_t pid, int seconds);
// Sends `signal` to `pid` unless it has ended, and returns its exit code.
int end_process(pid_t pid, int signal);

}  // namespace talmo::testing
