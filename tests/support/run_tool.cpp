#include <filesystem>
#include <string>

#include "tests/support/subprocess.h"
#include "tests/support/test_support.h"

namespace talmo::testing {

RunResult run_tool(const std::string& dir, const std::string& stdin_text,
                   const std::vector<std::string>& args, const Environment& environment) {
  namespace fs = std::filesystem;
  const fs::path executable = fs::path(dir) / "talmo_software";
  if (!fs::exists(executable)) {
    fs::copy_file(TALMO_EXECUTABLE, executable);
    fs::permissions(executable, fs::perms::owner_all | fs::perms::group_read |
                                    fs::perms::group_exec | fs::perms::others_read |
                                    fs::perms::others_exec);
  }
  std::vector<std::string> argv = {executable.string()};
  argv.insert(argv.end(), args.begin(), args.end());
  Environment additions;
  if (PrivateMariaDb::running())
    additions["MYSQL_TCP_PORT"] = std::to_string(PrivateMariaDb::instance().port());
  for (const auto& [name, value] : environment)
    additions[name] = value;
  return run_process(argv, dir, stdin_text, additions, 120);
}

}  // namespace talmo::testing
