#include "core/text_utils.h"

#include <gtest/gtest.h>

#include "tests/support/test_support.h"

namespace talmo {
namespace {

TEST(SiteAddresses, HostAndBaseAddressPerSiteCode) {
  TALMO_NEEDS_DEFAULT_SITE();
  struct Case {
    std::string site, name, url;
  };
  for (const Case& c : std::vector<Case>{
           {"hu", "www.kelvor.hu", "https://www.kelvor.hu"},
           {"sk", "www.kelvor.sk", "https://www.kelvor.sk"},
           {"Cz", "www.kelvor.cz", "https://www.kelvor.cz"},
           {"pl", "", "https://"},
           {"", "", "https://"},
       }) {
    EXPECT_EQ(GETSITENAME(c.site), c.name) << c.site;
    EXPECT_EQ(GETSITEURL(c.site), c.url) << c.site;
  }
}

TEST(StringExtract, KeepsEmptyPiecesAndTrimsOnlyTheLast) {
  struct Case {
    std::string input;
    char delimiter;
    StringList pieces;
  };
  for (const Case& c : std::vector<Case>{
           {"|a", '|', {"", "a"}},
           {"a|", '|', {"a", ""}},
           {" a |b ", '|', {" a ", "b"}},
           {"  single  ", '|', {"single"}},
           {"", '|', {""}},
           {"1|x|1^1|y|2", '^', {"1|x|1", "1|y|2"}},
           {"\ta\t|\tb\t", '|', {"\ta\t", "b"}},
       }) {
    StringList list{"left over"};
    STRINGEXTRACT(c.input, list, c.delimiter);
    EXPECT_EQ(list, c.pieces) << c.input;
  }
}

TEST(CountOccurences, CountsNonOverlappingHits) {
  EXPECT_EQ(COUNTOCCURENCES("aa", "aaaa"), 2);
  EXPECT_EQ(COUNTOCCURENCES("aa", "aaa"), 1);
  EXPECT_EQ(COUNTOCCURENCES(".", "1.234.567,89"), 2);
  EXPECT_EQ(COUNTOCCURENCES("", "abc"), 0);
  EXPECT_EQ(COUNTOCCURENCES("x", ""), 0);
}

TEST(MakeValidNumericValue, KeepsOnlyTheLastSeparatorAsDecimalPoint) {
  struct Case {
    std::string input, output;
  };
  for (const Case& c : std::vector<Case>{
           {"1 234,50", "1234.50"},
           {"1.234.567,89", "1234567.89"},
           {"99990", "99990"},
           {"Kalkulálás alatt", "0"},
           {"", "0"},
           {" ", ""},
           {"12a,5", "12a.5"},
       }) {
    EXPECT_EQ(MAKEVALIDNUMERICVALUE(c.input), c.output) << c.input;
  }
}

}  // namespace
}  // namespace talmo
