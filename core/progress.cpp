#include "core/progress.h"

#include <cmath>

#include "core/strings.h"

namespace talmo {
namespace {

std::string two_figures(std::int64_t value) {
  return (value < 10 ? "0" : "") + std::to_string(value);
}

}  // namespace

std::int64_t percent_half_even(std::int64_t part, std::int64_t whole) {
  const std::int64_t scaled = part * 100;
  std::int64_t quotient = scaled / whole;
  const std::int64_t twice_rest = 2 * (scaled % whole);
  if (twice_rest > whole || (twice_rest == whole && quotient % 2 != 0))
    ++quotient;
  return quotient;
}

std::string padded_percent(std::int64_t part, std::int64_t whole) {
  std::string text = std::to_string(percent_half_even(part, whole));
  if (text.size() < 3)
    text.insert(0, 3 - text.size(), ' ');
  return text;
}

std::string format_duration(double milliseconds) {
  constexpr std::int64_t kDay = 24LL * 60 * 60 * 1000;
  const std::int64_t total =
      static_cast<std::int64_t>(std::llround(std::fabs(milliseconds))) % kDay;
  const std::int64_t hours = total / 3'600'000;
  const std::int64_t minutes = total / 60'000 % 60;
  const std::int64_t seconds = total / 1000 % 60;
  const std::int64_t millis = total % 1000;
  return two_figures(hours) + ":" + two_figures(minutes) + ":" + two_figures(seconds) + "." +
         std::to_string(millis);
}

std::string progress_line(const std::string& label, const std::string& site, std::int64_t index,
                          std::int64_t count, std::int64_t start_ms, std::int64_t now_ms) {
  // The start minus the present, so zero or negative; the printed times drop the sign.
  const double elapsed = static_cast<double>(start_ms - now_ms);
  const double per_item = elapsed / static_cast<double>(index + 1);
  const double remaining = static_cast<double>(count) * per_item - elapsed;
  return padded_percent(index + 1, count) + label + upper_ascii(site) + ") " +
         std::to_string(index + 1) + " of " + std::to_string(count) +
         " | Time elapsed: " + format_duration(elapsed) + " - ETA: " + format_duration(remaining);
}

}  // namespace talmo
