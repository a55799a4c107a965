// Grando's category numbers from manufacturer, series and product group.
#include "feeds/grando_categories.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace talmo {
namespace {

TEST(GrandoCategories, NumbersFollowBrandGroupAndSeries) {
  struct Case {
    std::string manufacturer, series, group, number;
  };
  const std::string aio = "Minden egyben PC - AIO PC";
  const std::vector<Case> cases = {
      // brand only: its default, or nothing when it has none
      {"Toshiba", "", "Monitor", "9641"},
      {"Acer", "", "Monitor", ""},
      {"Hewlett-Packard", "Pavilion", "Laptop", ""},  // "hp" does not occur in it
      // group defaults
      {"Acer", "Aspire One", "Netbook", "9599"},
      {"Apple", "", "Netbook", ""},
      {"Samsung", "Ativ", "Tablet", "8296"},  // the group sets nothing, the brand default stays
      // series keys, the last match in table order winning
      {"ACER", "Aspire 5750G", "Laptop", "9597"},
      {"Apple", "MacBook Air", "Laptop", "9605"},
      {"Apple", "MacBook Pro", "Laptop", "9607"},
      {"Apple", "iMac 27", aio, "9308"},
      {"HP", "Pavilion Elite", aio, "9329"},
      // one-letter keys match any series holding the letter
      {"Asus", "N56VZ", "Laptop", "9611"},
      {"Asus", "UX31A", "Laptop", "9608"},
      {"Asus", "X53K", "Laptop", "9608"},
      {"Asus", "K55VD", "Laptop", "9612"},
      {"MSI", "CX61", "Laptop", "9638"},
      // groups are tested one after another, so a group naming two kinds ends with the later one
      {"Acer", "TravelMate", "Laptop Tablet", "9946"},
      // the first brand in the table decides alone
      {"Acer / Packard Bell", "", "Laptop", "9602"},
      {"Toshiba by Dell", "Inspiron", "Laptop", "9641"},
  };
  for (const Case& c : cases) {
    // The second kind is handed over but never looked at.
    for (const char* second : {"", "Tablet", "Laptop"}) {
      EXPECT_EQ(GET_CATEGORY_NUMBER(c.manufacturer, c.series, c.group, second), c.number)
          << c.manufacturer << " / " << c.series << " / " << c.group << " / " << second;
    }
  }
}

}  // namespace
}  // namespace talmo
