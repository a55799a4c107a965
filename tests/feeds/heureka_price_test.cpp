// The Heureka.sk price text: a second decimal figure where one is missing, then decimal commas.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "feeds/heureka_sk.h"

namespace talmo::testing {
namespace {

TEST(HeurekaPriceDecimals, WritesCentsWithADecimalComma) {
  struct Case {
    std::string price, written, why;
  };
  for (const Case& c : std::vector<Case>{
           {"499.9", "499,90", "one figure after the point gets its zero"},
           {"499.99", "499,99", "two figures stay"},
           {"12.345", "12,345", "more figures are left alone"},
           {"1200", "1200", "a whole price stays whole"},
           {"1200.", "1200,", "a point with nothing after it gets no zero"},
           {"1.23.4", "1,23,4", "only the part after the first point counts; every point turns"},
           {"-0.5", "-0,50", "the sign is kept"},
           {"0", "00", "a one-character price without a point gets the zero as well"},
           {"€", "€0", "one character is one letter, however many bytes it takes"},
           {"12.€", "12,€0", "a letter of several bytes after the point is one figure"},
           {"12.€€", "12,€€", "two such letters are two figures"},
           {"Á", "Á0", "a two-byte letter alone"},
           {"ab", "ab", "two one-byte letters"},
           {"💶", "💶0", "a four-byte letter alone"},
           {"", "", "nothing to write"},
       }) {
    EXPECT_EQ(heureka_price_decimals(c.price), c.written) << c.why;
  }
}

}  // namespace
}  // namespace talmo::testing
