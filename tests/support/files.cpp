#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <regex>

#include "core/file_input.h"
#include "site_config.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace fs = std::filesystem;

TempDir::TempDir() {
  const char* base = std::getenv("TMPDIR");
  path_ = std::string(base && *base ? base : "/tmp") + "/talmo-test-XXXXXX";
  if (::mkdtemp(path_.data()) == nullptr)
    throw std::runtime_error("mkdtemp " + path_);
  path_ = fs::absolute(path_).string();
}

TempDir::~TempDir() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

std::string read_file(const std::string& path) {
  if (std::optional<std::string> content = read_whole_file(path))
    return *content;
  throw std::runtime_error("cannot read " + path);
}

void write_file(const std::string& path, const std::string& content) {
  fs::create_directories(fs::path(path).parent_path());
  if (!(std::ofstream(path, std::ios::binary) << content).flush())
    throw std::runtime_error("cannot write " + path);
}

mode_t mode_of(const std::string& path) {
  return static_cast<mode_t>(fs::status(path).permissions() & fs::perms::mask);
}

std::size_t entries_in(const std::string& dir) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(dir), {}));
}

bool file_exists(const std::string& path) {
  return fs::exists(fs::symlink_status(path));
}

bool built_with_default_site() {
  return std::string(site_config::kHostHu) + site_config::kHostSk + site_config::kHostCz +
             site_config::kHuArticleBase ==
         "www.kelvor.huwww.kelvor.skwww.kelvor.czhttps://www.kelvor.hu";
}

void prepare_run_directory(const std::string& dir) {
  write_file(dir + "/config.dat", kDefaultConfig);
  fs::create_directories(dir + "/export/hu");
  fs::create_directories(dir + "/export/sk");
}

std::string mask_times(const std::string& text) {
  static const std::regex kClock(R"(\d\d:\d\d:\d\d\.\d{1,3})");
  return std::regex_replace(text, kClock, "<time>");
}

// The line of `text` from `start` on, at most 80 bytes either side of `at`, control bytes shown.
std::string excerpt(const std::string& text, std::size_t start, std::size_t at) {
  std::string shown;
  for (std::size_t i = std::max(start, at - std::min(at, std::size_t{80}));
       i < std::min(text.size(), at + 80) && text[i] != '\n'; ++i) {
    const unsigned char c = static_cast<unsigned char>(text[i]);
    const std::size_t named = std::string("\r\t\\").find(text[i]);
    char code[8];
    std::snprintf(code, sizeof code, c < 0x20 || c == 0x7f ? "\\x%02x" : "%c", c);
    shown += named != std::string::npos ? std::string("\\") + "rt\\"[named] : code;
  }
  return shown;
}

void expect_same_text(const std::string& expected, const std::string& actual, const char* file,
                      int line) {
  const std::size_t at =
      std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end()).first -
      expected.begin();
  const std::size_t start = at == 0 ? 0 : expected.rfind('\n', at - 1) + 1;
  const auto lines = [](const std::string& text, std::size_t end) {
    return std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end), '\n') + 1;
  };
  if (expected != actual)
    ADD_FAILURE_AT(file, line) << "texts differ at line " << lines(expected, at) << ", column "
                               << at - start + 1 << " (expected "
                               << lines(expected, expected.size()) << " lines, got "
                               << lines(actual, actual.size())
                               << ")\n  expected: " << excerpt(expected, start, at)
                               << "\n  actual:   " << excerpt(actual, start, at);
}

}  // namespace talmo::testing
