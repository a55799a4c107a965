#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

#include "tests/support/test_support.h"

namespace talmo::testing {

TempDir::TempDir() {
  const char* base = std::getenv("TMPDIR");
  std::string pattern =
      std::string(base != nullptr && *base != '\0' ? base : "/tmp") + "/talmo-test-XXXXXX";
  if (::mkdtemp(pattern.data()) == nullptr)
    throw std::system_error(errno, std::generic_category(), "mkdtemp " + pattern);
  path_ = std::filesystem::absolute(pattern).string();
}

TempDir::~TempDir() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string read_file(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in)
    throw std::runtime_error("cannot read " + path);
  std::string content((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad())
    throw std::runtime_error("cannot read " + path);
  return content;
}

void write_file(const std::string& path, const std::string& content) {
  const std::filesystem::path parent = std::filesystem::path(path).parent_path();
  if (!parent.empty())
    std::filesystem::create_directories(parent);
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << content;
  out.close();
  if (!out)
    throw std::runtime_error("cannot write " + path);
}

void prepare_run_directory(const std::string& dir) {
  write_file(dir + "/config.dat", kDefaultConfig);
  std::filesystem::create_directories(dir + "/export/hu");
  std::filesystem::create_directories(dir + "/export/sk");
}

bool file_exists(const std::string& path) {
  struct stat info {};
  return ::lstat(path.c_str(), &info) == 0;
}

std::string source_path(const std::string& relative) {
  return std::string(TALMO_SOURCE_DIR) + "/" + relative;
}

mode_t mode_of(const std::string& path) {
  struct stat info {};
  if (::stat(path.c_str(), &info) != 0)
    throw std::runtime_error("cannot stat " + path);
  return info.st_mode & 07777;
}

std::size_t entries_in(const std::string& dir) {
  std::size_t count = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(dir))
    ++count;
  return count;
}

}  // namespace talmo::testing
