// The feeds' own rules on single values (Grando's category numbers, its percentage raise with
// the "90" ending, which Vatera raises again, and warranty codes, the Heureka.sk decimal comma),
// and the XML converters at their edges. Whole feeds are the golden catalogue's.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "feeds/grando.h"
#include "feeds/grando_categories.h"
#include "feeds/heureka_sk.h"
#include "feeds/talmo.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

TEST(GrandoCategories, NumbersFollowBrandGroupAndSeries) {
  struct Case {
    std::string manufacturer, series, group, number;
  };
  const std::vector<Case> cases = {
      {"Toshiba", "", "Monitor", "9641"},  // brand only: its default, or nothing without one
      {"Acer", "", "Monitor", ""},
      {"Hewlett-Packard", "Pavilion", "Laptop", ""},  // "hp" does not occur in it
      {"Acer", "Aspire One", "Netbook", "9599"},      // the group's default
      {"Samsung", "Ativ", "Tablet", "8296"},  // the group sets nothing, the brand default stays
      // series keys, the last match in table order winning
      {"Apple", "MacBook Pro", "Laptop", "9607"},
      {"HP", "Pavilion Elite", "Minden egyben PC - AIO PC", "9329"},
      // one-letter keys match any series holding the letter
      {"Asus", "N56VZ", "Laptop", "9611"},
      {"Asus", "UX31A", "Laptop", "9608"},
      {"MSI", "CX61", "Laptop", "9638"},
      // groups are tested one after another, so a group naming two kinds ends with the later one
      {"Acer", "TravelMate", "Laptop Tablet", "9946"},
      {"Acer / Packard Bell", "", "Laptop", "9602"},  // the first brand in the table decides alone
  };
  for (const Case& c : cases) {
    // The second kind is handed over but never looked at.
    for (const char* second : {"", "Tablet", "Laptop"}) {
      EXPECT_EQ(GET_CATEGORY_NUMBER(c.manufacturer, c.series, c.group, second), c.number)
          << c.manufacturer << " / " << c.series << " / " << c.group << " / " << second;
    }
  }
}

TEST(GrandoAddPercent, RaisesRoundsAndEndsIn90) {
  struct Case {
    std::int32_t percent;
    std::string amount, result;
  };
  for (const Case& c : std::vector<Case>{
           {4, "99990", "103990"},           // 103989.6 rounds to a price already ending in 90
           {4, "2147483647", "2233382990"},  // beyond 32 bits after the raise
           {4, "1234.5", "1234.5"},          // not a 32-bit whole number: returned as it came
           {4, "5", "5"},  // a single figure (sign not counted) is left as computed
           {4, "-100", "-190"},
           {50, "3", "4"},  // 4.5: ties go to the even neighbour
       }) {
    EXPECT_EQ(GENERATE_GRANDO_ADDPERCENT(c.percent, c.amount), c.result)
        << c.percent << "% of \"" << c.amount << "\"";
  }
}

TEST(GrandoWarrantyCode, TwelveIsLookedForFirst) {
  EXPECT_EQ(grando_warranty_code("x24x12"), "7");
}

TEST(HeurekaPriceDecimals, WritesCentsWithADecimalComma) {
  struct Case {
    std::string price, written;
  };
  for (const Case& c : std::vector<Case>{
           {"12.345", "12,345"},
           {"1200", "1200"},
           {"1200.", "1200,"},    // nothing after the point: no zero
           {"1.23.4", "1,23,4"},  // only the part after the first point counts
           {"0", "00"},           // one character without a point gets the zero as well
           // One character is one letter, however many bytes it takes.
           {"€", "€0"},
           {"12.€", "12,€0"},
           {"12.€€", "12,€€"},
           {"Á", "Á0"},
           {"💶", "💶0"},
       }) {
    EXPECT_EQ(heureka_price_decimals(c.price), c.written) << c.price;
  }
}

const std::string kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n";

TEST(Converters, HeaderOnlyTablesWriteTheBareFrameAndTheTalmoPriceGoesUnescaped) {
  TempDir dir;
  const std::string PATH = dir.path() + "/";
  write_file(PATH + "export/hu/.keep", "");
  write_file(PATH + "export/sk/.keep", "");
  XmlFeedFile talmo(PATH + "export/hu/talmo.xml", talmo_layout());
  XmlFeedFile grando(PATH + "export/hu/grando.xml", grando_layout());
  XmlFeedFile heureka(PATH + "export/sk/heureka.xml", heureka_layout());
  CapturedStdout out;
  TALMO2XML(talmo, PATH);
  GRANDO2XML(grando);
  HEUREKASK2XML(heureka, PATH);
  EXPECT_EQ(out.text(), "Saving File: " + PATH + "export/hu/talmo.xml\nSaving Output File: " +
                            PATH + "export/sk/heureka.xml\n");  // no progress lines
  EXPECT_EQ(read_file(PATH + "export/hu/talmo.xml"),
            kDeclaration + "<termeklista>\n</termeklista>\n");
  EXPECT_EQ(read_file(PATH + "export/hu/grando.xml"), kDeclaration + "<products>\n</products>\n");
  EXPECT_EQ(read_file(PATH + "export/sk/heureka.xml"), kDeclaration + "<SHOP>\n</SHOP>\n");

  XmlFeedFile priced(PATH + "export/hu/talmo.xml", talmo_layout());
  ColumnTable TALMOP;
  priced.attach(TALMOP);
  GENERATE_TALMO_HEADER(TALMOP);
  add_item_row(TALMOP, {"a", "n", "d", "1 & <2>", "f", "l", "1 munkanap", "890"});
  TALMO2XML(priced, PATH);
  EXPECT_NE(read_file(PATH + "export/hu/talmo.xml").find("\t\t<ar>1 & <2></ar>\n"),
            std::string::npos);
}

}  // namespace
}  // namespace talmo::testing
