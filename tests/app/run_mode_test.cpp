// The switch back to one statement per lookup: TALMO_SNAPSHOT=off, nothing else.
#include <gtest/gtest.h>

#include <cstdlib>

#include "app/run_mode.h"

namespace talmo::testing {
namespace {

TEST(RunMode, OnlyOffTurnsTheSnapshotOff) {
  const struct {
    const char* value;  // nullptr: not set
    bool from_snapshot;
  } cases[] = {
      {nullptr, true}, {"", true},  {"on", true},   {"OFF", true},
      {"off ", true},  {"0", true}, {"off", false},
  };
  for (const auto& c : cases) {
    if (c.value == nullptr)
      ::unsetenv("TALMO_SNAPSHOT");
    else
      ::setenv("TALMO_SNAPSHOT", c.value, 1);
    EXPECT_EQ(answers_from_snapshot(), c.from_snapshot) << (c.value ? c.value : "(not set)");
  }
  ::unsetenv("TALMO_SNAPSHOT");
}

}  // namespace
}  // namespace talmo::testing
