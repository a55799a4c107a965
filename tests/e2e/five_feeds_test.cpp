// One run of the tool with "y" for all five feeds over a small catalogue: the five feed files and
// the whole console, each against a file worked out by hand (tests/e2e/expected/five_feeds/).
#include <gtest/gtest.h>

#include <memory>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

const std::string kExpected = "tests/e2e/expected/five_feeds/";

class FiveFeeds : public ::testing::Test {
 protected:
  // The run is made once; every check below reads what it left behind.
  static void SetUpTestSuite() {
    PrivateMariaDb::instance().reset_database();
    PrivateMariaDb::instance().run_sql_file(source_path("tests/e2e/fixtures/five_feeds.sql"));
    dir_ = std::make_unique<TempDir>();
    prepare_run_directory(dir_->path());
    result_ = run_tool(dir_->path(), "y\ny\ny\ny\ny\n\n");
  }
  static void TearDownTestSuite() { dir_.reset(); }

  // The tool's directory as the tool prints it, with its trailing "/".
  static std::string path() { return dir_->path() + "/"; }

  static std::unique_ptr<TempDir> dir_;
  static RunResult result_;
};

std::unique_ptr<TempDir> FiveFeeds::dir_;
RunResult FiveFeeds::result_;

// The expected console names the tool's directory "<path>" (with its trailing "/").
std::string with_path(std::string text, const std::string& path) {
  const std::string mark = "<path>";
  for (std::size_t at = text.find(mark); at != std::string::npos;
       at = text.find(mark, at + path.size()))
    text.replace(at, mark.size(), path);
  return text;
}

TEST_F(FiveFeeds, Console) {
  EXPECT_FALSE(result_.timed_out);
  EXPECT_EQ(result_.exit_code, 0);
  EXPECT_EQ(result_.err, "");
  expect_same_text(with_path(read_file(source_path(kExpected + "console.txt")), path()),
                   mask_times(result_.out));
}

TEST_F(FiveFeeds, Files) {
  const struct {
    const char* expected;
    const char* written;
  } feeds[] = {
      {"talmo.xml", "export/hu/talmo.xml"},     {"arukereso.csv", "export/hu/arukereso.csv"},
      {"grando.xml", "export/hu/grando.xml"},   {"vatera.csv", "export/hu/vatera.csv"},
      {"heureka.xml", "export/sk/heureka.xml"},
  };
  for (const auto& feed : feeds) {
    SCOPED_TRACE(feed.written);
    if (!file_exists(path() + feed.written)) {
      ADD_FAILURE() << "not written";
      continue;
    }
    expect_same_text(read_file(source_path(kExpected + feed.expected)),
                     read_file(path() + feed.written));
  }
}

}  // namespace
}  // namespace talmo::testing
