#pragma once

#include <cstdint>
#include <string>

namespace talmo {

// part / whole × 100 rounded from the exact fraction, halves to the even neighbour
// (3 of 8 gives 38, 1 of 8 gives 12). `whole` must be above zero.
std::int64_t percent_half_even(std::int64_t part, std::int64_t whole);

// A percentage padded on the left with blanks to three characters ("  1", " 50", "100").
std::string padded_percent(std::int64_t part, std::int64_t whole);

// A duration in milliseconds as "hh:nn:ss.zz": hours, minutes and seconds with two figures,
// milliseconds without leading zeros. The sign is dropped; 24 hours and more wrap around.
std::string format_duration(double milliseconds);

// The progress line of item `index` (from 0) of `count`, started at `start_ms`: percent, the
// export's label, the site in upper case, the item counter, elapsed time and estimated time left.
std::string progress_line(const std::string& label, const std::string& site, std::int64_t index,
                          std::int64_t count, std::int64_t start_ms, std::int64_t now_ms);

}  // namespace talmo
