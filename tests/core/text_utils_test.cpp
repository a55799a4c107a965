#include "core/text_utils.h"

#include <gtest/gtest.h>

#include "tests/support/test_support.h"

namespace talmo {
namespace {

TEST(SiteAddresses, HostAndBaseAddressPerSiteCode) {
  TALMO_NEEDS_DEFAULT_SITE();
  EXPECT_EQ(GETSITENAME("Cz"), "www.kelvor.cz");
  EXPECT_EQ(GETSITEURL("sk"), "https://www.kelvor.sk");
  EXPECT_EQ(GETSITENAME("pl"), "");
  EXPECT_EQ(GETSITEURL(""), "https://");
}

TEST(StringExtract, KeepsEmptyPiecesAndTrimsOnlyTheLast) {
  const std::pair<const char*, StringList> cases[] = {
      {"|a", {"", "a"}}, {" a |b ", {" a ", "b"}},        {"  single  ", {"single"}},
      {"", {""}},        {"\ta\t|\tb\t", {"\ta\t", "b"}},
  };
  for (const auto& [input, pieces] : cases) {
    StringList list{"left over"};
    STRINGEXTRACT(input, list, '|');
    EXPECT_EQ(list, pieces) << input;
  }
  EXPECT_EQ(split_stored("1|x|1^1|y|2", '^'), (StringList{"1|x|1", "1|y|2"}));
}

TEST(Numbers, CountsAndDecimalPoints) {
  EXPECT_EQ(COUNTOCCURENCES("aa", "aaaaa"), 2);
  const std::pair<const char*, const char*> cases[] = {{"1 234,50", "1234.50"},
                                                       {"1.234.567,89", "1234567.89"},
                                                       {"Kalkulálás alatt", "0"},
                                                       {"", "0"},
                                                       {" ", ""},
                                                       {"12a,5", "12a.5"}};
  for (const auto& [input, output] : cases)
    EXPECT_EQ(MAKEVALIDNUMERICVALUE(input), output) << input;
}

}  // namespace
}  // namespace talmo
