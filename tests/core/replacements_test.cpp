// Replacement lists applied to long texts: the same result as one replace_all(_ci) per pair in
// list order, whether the list is applied in one scan or pass by pass.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/replacements.h"

namespace talmo::testing {
namespace {

TEST(Replacements, GiveWhatReplacingPairByPairGives) {
  const struct {
    const char* name;
    std::vector<Replacements::Pair> pairs;
    bool ignore_case;
    std::string text, expected;
    bool scans_once;
  } cases[] = {
      {"tags in any letter case",
       {{"<b>", "<strong>"}, {"</b>", "</strong>"}},
       true,
       "<B>Akku</b>: <b>4 óra</B> <bx>",
       "<strong>Akku</strong>: <strong>4 óra</strong> <bx>",
       true},
      {"exact letter case",
       {{"<b>", "<strong>"}, {"</b>", "</strong>"}},
       false,
       "<B>Akku</b>: <b>4</B>",
       "<B>Akku</strong>: <strong>4</B>",
       true},
      {"an occurrence made by an earlier pair is replaced by the later one",
       {{"ab", "x"}, {"xc", "y"}},
       false,
       "abc xc abd",
       "y y xd",
       false},
      {"a removal joins its two sides into an occurrence",
       {{"<!--x-->", ""}, {"<br>", "<br />"}},
       false,
       "<b<!--x-->r><br>",
       "<br /><br />",
       false},
      {"a later pattern met inside an earlier one is taken by the earlier",
       {{"<td a>", "<td id=1>"}, {"a>", "A>"}},
       false,
       "<td a> a>",
       "<td id=1> A>",
       false},
      {"occurrences do not overlap and are not read again",
       {{"aa", "a"}},
       false,
       "aaaaa",
       "aaa",
       false},
      {"an empty pattern changes nothing", {{"", "x"}, {"b", "c"}}, false, "abc", "acc", false},
  };
  for (const auto& c : cases) {
    const Replacements replacements(c.pairs, c.ignore_case);
    EXPECT_EQ(replacements.apply(c.text), c.expected) << c.name;
    EXPECT_EQ(replacements.scans_once(), c.scans_once) << c.name;
  }
}

TEST(Replacements, BlankRunsCollapseToOneBlank) {
  EXPECT_EQ(collapse_blanks("   "), " ");
  EXPECT_EQ(collapse_blanks("  a   b    c "), " a b c ");
  EXPECT_EQ(collapse_blanks("a\t\tb  \n  c"), "a\t\tb \n c");
}

}  // namespace
}  // namespace talmo::testing
