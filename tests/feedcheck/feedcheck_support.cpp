#include "tests/feedcheck/feedcheck_support.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/subprocess.h"

namespace talmo::testing {

RunResult run_feedcheck(const std::vector<std::string>& args, const std::string& cwd) {
  std::vector<std::string> argv = {TALMO_FEEDCHECK};
  argv.insert(argv.end(), args.begin(), args.end());
  return run_process(argv, cwd, "", {}, 120);
}

RunResult run_command(const std::vector<std::string>& argv, const std::string& stdin_text,
                      const std::string& cwd) {
  return run_process(argv, cwd, stdin_text, {}, 120);
}

std::string feeds_path(const std::string& name) {
  return source_path("tests/feedcheck/feeds/" + name);
}

void copy_feeds(const std::string& name, const std::string& dir) {
  namespace fs = std::filesystem;
  fs::create_directories(dir);
  fs::copy(feeds_path(name), dir,
           fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

std::string expected_report(const std::string& file,
                            const std::map<std::string, std::string>& marks) {
  std::string text = read_file(source_path("tests/feedcheck/expected/" + file));
  std::map<std::string, std::string> all = marks;
  all["version"] = TALMO_EXPECTED_VERSION;
  for (const auto& [name, value] : all) {
    const std::string mark = "<" + name + ">";
    for (std::size_t at = text.find(mark); at != std::string::npos;
         at = text.find(mark, at + value.size()))
      text.replace(at, mark.size(), value);
  }
  return text;
}

void expect_report(const std::vector<std::string>& args, const std::string& expected_file,
                   const std::map<std::string, std::string>& marks, int exit_status,
                   const char* file, int line) {
  const RunResult result = run_feedcheck(args);
  EXPECT_EQ(result.exit_code, exit_status) << "called from " << file << ":" << line;
  EXPECT_EQ(result.err, "") << "called from " << file << ":" << line;
  expect_same_text(expected_report(expected_file, marks), result.out, file, line);
}

}  // namespace talmo::testing
