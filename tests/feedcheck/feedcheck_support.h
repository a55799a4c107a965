#pragma once

// Helpers of the feed checker's tests: running the built checker, the hand-made feeds under
// tests/feedcheck/feeds/ and the reports expected for them under tests/feedcheck/expected/.

#include <map>
#include <string>
#include <vector>

#include "tests/support/test_support.h"

namespace talmo::testing {

// Runs the built talmo_feedcheck with `args` in `cwd` ("" keeps ours). Killed after 120 s.
RunResult run_feedcheck(const std::vector<std::string>& args, const std::string& cwd = "");

// Runs any program `argv` with `stdin_text` as its input, in `cwd` ("" keeps ours).
RunResult run_command(const std::vector<std::string>& argv, const std::string& stdin_text,
                      const std::string& cwd = "");

// The absolute path of the hand-made feed set `name` (a folder with hu/ and sk/).
std::string feeds_path(const std::string& name);

// Copies the feed set `name` into `dir` (made when missing), as an export would leave it.
void copy_feeds(const std::string& name, const std::string& dir);

// The expected report `file`, with every "<version>" replaced by the project's version and every
// "<NAME>" of `marks` by its text.
std::string expected_report(const std::string& file,
                            const std::map<std::string, std::string>& marks);

// Runs the checker as `args` and fails the test unless the report and exit status are as expected.
void expect_report(const std::vector<std::string>& args, const std::string& expected_file,
                   const std::map<std::string, std::string>& marks, int exit_status,
                   const char* file = __builtin_FILE(), int line = __builtin_LINE());

}  // namespace talmo::testing
