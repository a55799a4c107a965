// The helper whose fault no other test would show: a text comparison that never fails.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

TEST(ExpectSameText, FailsOnTheFirstDifferingLine) {
  EXPECT_NONFATAL_FAILURE(expect_same_text("head\nab\tc\nrest\n", "head\nab\tc\r\nrest\n"),
                          "line 2");
  expect_same_text("same\n", "same\n");
}

}  // namespace
}  // namespace talmo::testing
