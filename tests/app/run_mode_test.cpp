// The switch back to one statement per lookup: TALMO_SNAPSHOT=off, nothing else.
#include "app/run_mode.h"
#include <gtest/gtest.h>
#include <stdlib.h>

namespace talmo::testing {
namespace {

TEST(RunMode, OnlyOffTurnsTheSnapshotOff) {
  ::unsetenv("TALMO_SNAPSHOT");
  EXPECT_TRUE(answers_from_snapshot());
  for (const char* value : {"", "on", "OFF", "off ", "0", "off"}) {
    ::setenv("TALMO_SNAPSHOT", value, 1);
    EXPECT_EQ(answers_from_snapshot(), std::string(value) != "off") << value;
  }
  ::unsetenv("TALMO_SNAPSHOT");
}

}  // namespace
}  // namespace talmo::testing
