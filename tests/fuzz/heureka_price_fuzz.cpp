// The Heureka.sk price text on any text: points become commas and a lone character after the
// first point (or a lone character without one) gets a "0", counting UTF-8 characters.
#include <algorithm>
#include <cmath>
#include <cstring>

#include "feeds/heureka_sk.h"
#include "product/price_rounding.h"
#include "tests/fuzz/fuzz_support.h"

namespace talmo::fuzzing {
namespace {

// The number of characters of a valid UTF-8 text; -1 when the text is not valid UTF-8.
int utf8_characters(const std::string& text) {
  int characters = 0;
  for (std::size_t at = 0; at < text.size(); ++characters) {
    const auto lead = static_cast<unsigned char>(text[at]);
    const std::size_t length = lead < 0x80                    ? 1
                               : lead >= 0xC2 && lead <= 0xDF ? 2
                               : lead >= 0xE0 && lead <= 0xEF ? 3
                               : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                              : 0;
    if (length == 0 || at + length > text.size())
      return -1;
    for (std::size_t k = 1; k < length; ++k) {
      if ((static_cast<unsigned char>(text[at + k]) & 0xC0) != 0x80)
        return -1;
    }
    at += length;
  }
  return characters;
}

void check_decimals(const std::string& price) {
  std::string commas = price;
  std::replace(commas.begin(), commas.end(), '.', ',');
  const std::size_t point = price.find('.');
  const std::string decimals = point == std::string::npos ? price : price.substr(point + 1);
  const std::string written = heureka_price_decimals(price);
  FUZZ_CHECK(written == commas || written == commas + "0");
  // Texts from the database are UTF-8: the "0" comes exactly when one character follows.
  const int characters = utf8_characters(decimals);
  if (characters >= 0)
    FUZZ_CHECK((written == commas + "0") == (characters == 1));
}

}  // namespace
}  // namespace talmo::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talmo;
  using namespace talmo::fuzzing;
  const std::string price = input_text(data, size);
  check_decimals(price);
  // A computed euro price always shows two figures after its comma.
  if (size == sizeof(double)) {
    double value = 0;
    std::memcpy(&value, data, sizeof value);
    const std::string written = heureka_price_decimals(format_general(value));
    const std::size_t comma = written.find(',');
    if (std::isfinite(value) && comma != std::string::npos)
      FUZZ_CHECK(written.size() - comma - 1 >= 2 &&
                 written.find(',', comma + 1) == std::string::npos);
  }
  return 0;
}
