// The site's price ending on any double; a printed price reads back to the same double (how
// prices are printed is checked over any number in number_reading_fuzz). Input: a byte choosing the
// site
// ("hu", "sk", "cz" or another code), then the eight bytes of the computed price.
#include <cmath>
#include <cstring>

#include "core/errors.h"
#include "core/strings.h"
#include "product/price_rounding.h"
#include "tests/fuzz/fuzz_support.h"

namespace talmo::fuzzing {
namespace {

// Nearest integer, a tie going to the even neighbour (the default rounding mode).
double nearest_even(double value) {
  return std::nearbyint(value);
}

bool fits_int32(double rounded) {
  return rounded >= -2147483648.0 && rounded <= 2147483647.0;
}

// The printed price reads back to the very same double.
void check_read_back(double price) {
  FUZZ_CHECK(to_number(format_general(price)) == price);
}

void check_forint(double value, double price) {
  const double whole = nearest_even(value);
  FUZZ_CHECK(price == std::floor(price));
  if (whole >= 0) {
    FUZZ_CHECK(std::fmod(price, 100) == 90);
    FUZZ_CHECK(std::floor(price / 100) == std::floor(whole / 100));
  } else {
    FUZZ_CHECK(std::fabs(price - whole) < 100);
  }
  check_read_back(price);
}

void check_euro(double value, double price) {
  const double whole = nearest_even(value);
  if (whole >= 0) {
    FUZZ_CHECK(format_general(price) == format_general(whole) + ".9");
    check_read_back(price);
  } else {
    FUZZ_CHECK(std::fabs(price - (whole + 0.9)) < 1e-6);
  }
}

void check_ending(double value, const std::string& site) {
  double price = 0;
  try {
    price = round_for_site(value, site);
  } catch (const ConversionError&) {
    // Only the forint and euro endings go through a 32-bit integer.
    FUZZ_CHECK((site == "hu" || site == "sk") && !fits_int32(nearest_even(value)));
    return;
  }
  if (site == "hu") {
    check_forint(value, price);
  } else if (site == "sk") {
    check_euro(value, price);
  } else if (site == "cz") {
    FUZZ_CHECK(price == nearest_even(value) || (std::isnan(price) && std::isnan(value)));
    if (std::isfinite(price) && std::fabs(price) < 1e15)
      check_read_back(price);
  } else {
    FUZZ_CHECK(std::memcmp(&price, &value, sizeof price) == 0);
  }
}

}  // namespace
}  // namespace talmo::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talmo::fuzzing;
  if (size < 1 + sizeof(double))
    return 0;
  static const char* const kSites[] = {"hu", "sk", "cz", "pl"};
  const std::string site = kSites[data[0] % 4];
  double value = 0;
  std::memcpy(&value, data + 1, sizeof value);
  check_ending(value, site);
  return 0;
}
