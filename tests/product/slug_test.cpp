#include "product/slug.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/errors.h"

namespace talmo {
namespace {

struct TextCase {
  std::string text, expected;
};

TEST(Slug, AccentsAndBlanksFollowTheShopsReplacementList) {
  for (const TextCase& c : std::vector<TextCase>{
           {"Tápegység (90W)", "tépegyseg--90w-"},
           {"a - b", "a---b"},  // blanks merge before the hyphen becomes one
           {"a  b", "a-b"},
           {"a   b", "a--b"},  // merged once, not repeatedly
           {"hõ", "ho"},       // the stored look-alikes of the double-acute letters
           {"fûtés", "futes"},
           {"ú é í ó ü ö", "u-e-i-o-u-o"},
           {"á", "é"},
           {"éá", "eé"},
           {"ő ű", "ő-ű"},  // the real double-acute letters are not in the list
           {"ÁRVÍZTŰRŐ tükörfúrógép", "ÁrvÍztŰrŐ-tukorfurogep"},  // accented capitals stay
       }) {
    EXPECT_EQ(slugify(c.text), c.expected) << c.text;
  }
}

TEST(Slug, EveryPunctuationMarkBecomesAHyphen) {
  for (const std::string mark :
       {"'", "\"", "+", "!", "§", "%", "/", "=", "(", ")", "?", ",", ".", ":", "-", "_"}) {
    EXPECT_EQ(slugify("X" + mark + "Y"), "x-y") << mark;
  }
  EXPECT_EQ(slugify("a;b&c#d*e"), "a;b&c#d*e");  // anything else is kept
}

TEST(Slug, SerialNumberChoosesTheModelName) {
  struct Case {
    std::string sorszam, gyarto, nev, tipusmegnevezes, expected;
  };
  for (const Case& c : std::vector<Case>{
           {"11129", "Asus", "VivoBook 15", "K55VD", "asus-k55vd-11129"},
           {"11130", "Asus", "VivoBook 15", "K55VD", "asus-vivobook-15-11130"},
           {"11131", "Asus", "VivoBook 15", "K55VD", "asus-vivobook-15-11131"},
           {"012000", "Lenovo", "IdeaPad 3", "X", "lenovo-ideapad-3-012000"},
           {"+11130", "Acer", "Swift", "SF3", "acer-swift--11130"},
           {"-5", "Acer", "Swift", "SF3", "acer-sf3--5"},
           {"100", "", "", "", "-100"},  // the two blanks merge once
       }) {
    EXPECT_EQ(product_slug(c.sorszam, c.gyarto, c.nev, c.tipusmegnevezes), c.expected) << c.sorszam;
  }
}

TEST(Slug, SerialNumberThatIsNotAWholeNumberIsRefused) {
  for (const std::string sorszam : {"", "12a", " 12345", "12345 ", "1.5", "AKC-123"}) {
    EXPECT_THROW(product_slug(sorszam, "Asus", "N", "T"), ConversionError) << sorszam;
  }
}

TEST(Slug, CategoryPathWord) {
  struct Case {
    std::string gyarto, input, expected;
  };
  for (const Case& c : std::vector<Case>{
           {"", "laptop", "laptop"},
           {"", "LAPTOP", "laptop"},
           {"", "Minden egyben PC - AIO PC", "minden-egyben-pc-aio-pc"},
           {"", "Asus Laptop", ""},  // without a manufacturer only the whole kind counts
           {"Asus", "Asus Laptop", "asus-laptop"},
           {"ASUS", "Tablet", "asus-tablet"},
           {"Asus", "Minden egyben PC - AIO PC", "asus-minden-egyben-pc"},
           {"Asus", "AIO PC", ""},                       // the kind is looked for with its blank
           {"Asus", "Laptop és tablet", "asus-tablet"},  // the last hit wins
           {"HP", "Minden egyben PC - AIO PC laptop", "hp-laptop"},
           {"Asus", "Ultrabook", ""},
       }) {
    EXPECT_EQ(GETCATEGORYURL(c.gyarto, c.input), c.expected) << c.gyarto << " / " << c.input;
  }
}

TEST(Slug, BaseAddressGetsOneSlash) {
  for (const TextCase& c :
       std::vector<TextCase>{{"https://www.kelvor.hu", "https://www.kelvor.hu/"},
                             {"https://www.kelvor.hu/", "https://www.kelvor.hu/"},
                             {"", "/"}}) {
    EXPECT_EQ(with_trailing_slash(c.text), c.expected) << c.text;
  }
}

}  // namespace
}  // namespace talmo
