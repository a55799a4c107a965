// Console recordings: what a text printed while it was built, to print again when it is reused.
#include <gtest/gtest.h>

#include "core/console.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

TEST(ConsoleRecording, KeepsACopyOfWhatIsWrittenWhileItLasts) {
  CapturedStdout out;
  write_line("before");
  std::string inner_output;
  ConsoleRecording outer;
  write_text("Error in Query: \r\r");
  {
    ConsoleRecording inner;
    write_line("SELECT 1;");
    inner_output = inner.output();
  }
  EXPECT_EQ(inner_output, "SELECT 1;\n");
  EXPECT_EQ(outer.output(), "Error in Query: \r\rSELECT 1;\n");
  EXPECT_EQ(out.text(), "before\nError in Query: \r\rSELECT 1;\n");
}

}  // namespace
}  // namespace talmo::testing
