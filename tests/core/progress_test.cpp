#include "core/progress.h"

#include <gtest/gtest.h>

namespace talmo {
namespace {

TEST(Percent, RoundsHalvesToEvenAndPadsToThreeCharacters) {
  const struct {
    std::int64_t part, whole;
    const char* padded;
  } cases[] = {{1, 100, "  1"}, {4, 8, " 50"}, {8, 8, "100"},   {1, 8, " 12"},
               {3, 8, " 38"},   {2, 3, " 67"}, {1, 200, "  0"}, {3, 200, "  2"}};
  for (const auto& c : cases)
    EXPECT_EQ(padded_percent(c.part, c.whole), c.padded) << c.part << " of " << c.whole;
}

TEST(Duration, HoursMinutesSecondsAndUnpaddedMilliseconds) {
  EXPECT_EQ(format_duration(-1234), "00:00:01.234");
  EXPECT_EQ(format_duration(-(3'600'000.0 * 2 + 60'000 * 3 + 4'050)), "02:03:04.50");
  EXPECT_EQ(format_duration(24.0 * 3'600'000 + 61'000), "00:01:01.0");  // a day wraps around
}

TEST(ProgressLine, ShowsCounterAndPositiveTimes) {
  // Two items of four done after three seconds: three more seconds to go.
  EXPECT_EQ(progress_line("% :: EXPORT :: (Type: TALMO :: Site: ", "hu", 1, 4, 10'000, 13'000),
            " 50% :: EXPORT :: (Type: TALMO :: Site: HU) 2 of 4 | Time elapsed: 00:00:03.0 - "
            "ETA: 00:00:03.0");
}

}  // namespace
}  // namespace talmo
