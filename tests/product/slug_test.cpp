// Page slugs and category path words, one row per rule of the shop's replacement list.
#include "product/slug.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/errors.h"

namespace talmo {
namespace {

TEST(Slug, AccentsBlanksAndPunctuationFollowTheShopsList) {
  struct Case {
    std::string text, slug;
  };
  for (const Case& c : std::vector<Case>{
           {"Tápegység (90W)", "tépegyseg--90w-"},  // "á" ends up as "é"
           {"éá ú í ó ü ö", "eé-u-i-o-u-o"},
           {"hõ fûtés", "ho-futes"},  // the stored look-alikes of the double-acute letters
           {"ÁRVÍZTŰRŐ tükör ő", "ÁrvÍztŰrŐ-tukor-ő"},  // accented capitals and ő, ű stay
           {"a - b", "a---b"},  // blanks merge before the hyphen becomes one
           {"a   b", "a--b"},   // merged once, not repeatedly
           {"X'\"+!§%/=()?,.:-_Y", "x----------------y"},
           {"a;b&c#d*e", "a;b&c#d*e"},  // anything else is kept
       }) {
    EXPECT_EQ(slugify(c.text), c.slug) << c.text;
  }
}

TEST(Slug, SerialNumberChoosesTheModelName) {
  struct Case {
    std::string sorszam, gyarto, nev, tipusmegnevezes, slug;
  };
  for (const Case& c : std::vector<Case>{
           {"11129", "Asus", "VivoBook 15", "K55VD", "asus-k55vd-11129"},
           {"+11130", "Acer", "Swift", "SF3", "acer-swift--11130"},
           {"-5", "Acer", "Swift", "SF3", "acer-sf3--5"},
           {"100", "", "", "", "-100"},  // the two blanks merge once
       }) {
    EXPECT_EQ(product_slug(c.sorszam, c.gyarto, c.nev, c.tipusmegnevezes), c.slug) << c.sorszam;
  }
  for (const std::string sorszam : {"", "12a", " 12345", "1.5"})
    EXPECT_THROW(product_slug(sorszam, "Asus", "N", "T"), ConversionError) << sorszam;
}

TEST(Slug, CategoryPathWord) {
  struct Case {
    std::string gyarto, input, word;
  };
  for (const Case& c : std::vector<Case>{
           {"", "LAPTOP", "laptop"},
           {"", "Minden egyben PC - AIO PC", "minden-egyben-pc-aio-pc"},
           {"", "Asus Laptop", ""},  // without a manufacturer only the whole kind counts
           {"Asus", "Laptop és tablet", "asus-tablet"},  // the last hit wins
       }) {
    EXPECT_EQ(GETCATEGORYURL(c.gyarto, c.input), c.word) << c.gyarto << " / " << c.input;
  }
  EXPECT_EQ(with_trailing_slash("https://www.kelvor.hu/"), "https://www.kelvor.hu/");
}

}  // namespace
}  // namespace talmo
