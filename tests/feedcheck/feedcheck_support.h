#pragma once

// Helpers of the feed checker's tests: running the built checker over the hand-made feed sets
// under tests/feedcheck/feeds/ and reading the reports expected for them.

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/subprocess.h"
#include "tests/support/test_support.h"

namespace talmo::testing {

// Runs the built talmo_feedcheck with `args`. Killed after 120 s.
inline RunResult run_feedcheck(const std::vector<std::string>& args) {
  std::vector<std::string> argv = {TALMO_FEEDCHECK};
  argv.insert(argv.end(), args.begin(), args.end());
  return run_process(argv, "", "", {}, 120);
}

// The absolute path of the hand-made feed set `name` (a folder with hu/ and sk/).
inline std::string feeds_path(const std::string& name) {
  return source_path("tests/feedcheck/feeds/" + name);
}

// Copies the feed set `name` into `dir` (made when missing), as an export would leave it.
inline void copy_feeds(const std::string& name, const std::string& dir) {
  std::filesystem::create_directories(dir);
  std::filesystem::copy(feeds_path(name), dir, std::filesystem::copy_options::recursive);
}

// The expected report `file`, with "<version>", "<dir>" (the export directory `dir`) and
// "<previous>" (the feed set "previous") filled in.
inline std::string expected_report(const std::string& file, const std::string& dir) {
  std::string text = read_file(source_path("tests/feedcheck/expected/" + file));
  const std::pair<std::string, std::string> marks[] = {{"<version>", TALMO_EXPECTED_VERSION},
                                                       {"<dir>", dir},
                                                       {"<previous>", feeds_path("previous")}};
  for (const auto& [mark, value] : marks) {
    for (auto at = text.find(mark); at != std::string::npos;
         at = text.find(mark, at + value.size()))
      text.replace(at, mark.size(), value);
  }
  return text;
}

}  // namespace talmo::testing
