// The shared test helpers where a fault would hide faults in the tests that use them: time
// masking lets whole consoles be compared, so it must mask clock readings and nothing else.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/subprocess.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

TEST(MaskTimes, ReplacesEveryClockReadingAndNothingElse) {
  struct Case {
    std::string text, masked;
  };
  for (const Case& c : std::vector<Case>{
           {" 50% ) 1 of 2 | Time elapsed: 00:00:01.5 - ETA: 00:00:03.250\n",
            " 50% ) 1 of 2 | Time elapsed: <time> - ETA: <time>\n"},
           {"x12:00:00.07y", "x<time>y"},
           {"12:34:56", "12:34:56"},
           {"1:02:03.4", "1:02:03.4"},
           {"2024-01-02 12:34:56,7", "2024-01-02 12:34:56,7"},
       }) {
    EXPECT_EQ(mask_times(c.text), c.masked) << c.text;
  }
}

TEST(ExpectSameText, NamesTheFirstDifferenceWithControlBytesVisible) {
  EXPECT_NONFATAL_FAILURE(expect_same_text("head\nab\tc\nrest\n", "head\nab\tc\r\nrest\n"),
                          "texts differ at line 2, column 5 (expected 4 lines, got 4)\n"
                          "  expected: ab\\tc\n"
                          "  actual:   ab\\tc\\r");
}

TEST(RunProcess, AHangingChildIsKilledAtTheTimeout) {
  const RunResult result = run_process({"sleep", "30"}, "", "", {}, 1);
  EXPECT_TRUE(result.timed_out);
  EXPECT_EQ(result.exit_code, 128 + 9);
}

}  // namespace
}  // namespace talmo::testing
