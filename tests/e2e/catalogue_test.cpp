// The golden catalogue (tests/e2e/fixtures/catalogue.sql) run as the operators run it, "y" for
// all five feeds: the five feed files and the whole console, each compared whole with its
// expected file in tests/e2e/expected/catalogue/.
#include <gtest/gtest.h>

#include <memory>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

const std::string kExpected = "tests/e2e/expected/catalogue/";

class GoldenCatalogue : public ::testing::Test {
 protected:
  // The run is made once; every check below reads what it left behind.
  static void SetUpTestSuite() {
    if (!built_with_default_site())
      return;
    PrivateMariaDb::instance().reset_database();
    PrivateMariaDb::instance().run_sql_file(source_path("tests/e2e/fixtures/catalogue.sql"));
    dir_ = std::make_unique<TempDir>();
    prepare_run_directory(dir_->path());
    result_ = run_tool(dir_->path(), "y\ny\ny\ny\ny\n\n");
  }
  static void TearDownTestSuite() { dir_.reset(); }

  void SetUp() override { TALMO_NEEDS_DEFAULT_SITE(); }

  // The tool's directory as the tool prints it, with its trailing "/".
  static std::string path() { return dir_->path() + "/"; }

  static std::unique_ptr<TempDir> dir_;
  static RunResult result_;
};

std::unique_ptr<TempDir> GoldenCatalogue::dir_;
RunResult GoldenCatalogue::result_;

// The expected console names the tool's directory "<path>".
std::string with_path(std::string text, const std::string& path) {
  for (std::size_t at = text.find("<path>"); at != std::string::npos;
       at = text.find("<path>", at + path.size()))
    text.replace(at, 6, path);
  return text;
}

TEST_F(GoldenCatalogue, Console) {
  EXPECT_FALSE(result_.timed_out);
  EXPECT_EQ(result_.exit_code, 0);
  EXPECT_EQ(result_.err, "");
  expect_same_text(with_path(read_file(source_path(kExpected + "console.txt")), path()),
                   mask_times(result_.out));
}

TEST_F(GoldenCatalogue, Feeds) {
  for (const char* feed :
       {"hu/talmo.xml", "hu/arukereso.csv", "hu/grando.xml", "hu/vatera.csv", "sk/heureka.xml"}) {
    SCOPED_TRACE(feed);
    const std::string written = path() + "export/" + feed;
    if (!file_exists(written)) {
      ADD_FAILURE() << "not written";
      continue;
    }
    expect_same_text(read_file(source_path(kExpected + std::string(feed).substr(3))),
                     read_file(written));
  }
}

}  // namespace
}  // namespace talmo::testing
