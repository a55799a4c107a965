#pragma once

// Child processes of a test program. Every child is killed when the test program dies first,
// so a crashed test never leaves a server or a tool running behind it.

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/test_support.h"

namespace talmo::testing {

// Runs `argv` (argv[0] searched on PATH and in the sbin folders) in `cwd` ("" keeps ours) with
// `stdin_text` as its whole input, capturing both outputs. Killed after `timeout_seconds`.
RunResult run_process(const std::vector<std::string>& argv, const std::string& cwd,
                      const std::string& stdin_text, const Environment& additions,
                      int timeout_seconds);

// Starts `argv` in the background with no input and both outputs appended to `log_path`.
pid_t start_process(const std::vector<std::string>& argv, const std::string& log_path);

// The exit code (128 + signal when killed) once `pid` has ended, nullopt while it runs.
std::optional<int> poll_process(pid_t pid);

// Waits up to `timeout_seconds` for `pid` to end, then kills it; returns its exit code.
int wait_process(pid_t pid, int timeout_seconds);

}  // namespace talmo::testing
