#include "feeds/grando_categories.h"

#include <string_view>
#include <vector>

#include "core/strings.h"

namespace talmo {
namespace {

// An empty number means the level sets nothing.
struct Series {
  std::string_view key;
  std::string_view number;
};

struct ProductGroup {
  std::string_view key;
  std::string_view number;
  std::vector<Series> series;
};

struct Brand {
  std::string_view key;
  std::string_view number;
  std::vector<ProductGroup> groups;
};

// Grando's category tree as the shop maps it. Keys are substrings, so the one-letter Asus and MSI
// series keys match any series name holding that letter; oddities such as "travelmate" under
// Acer tablets or one "9420" for several brands' tablets are what Grando expects.
const std::vector<Brand> kBrands = {
    {"acer",
     "",
     {
         {"laptop",
          "9602",
          {{"aspire", "9597"}, {"timeline", "9598"}, {"travelmate", "9600"}, {"extensa", "11002"}}},
         {"minden egyben", "9310", {}},
         {"netbook", "9599", {}},
         {"tablet", "9945", {{"honeycomb", "9944"}, {"iconia", "9943"}, {"travelmate", "9946"}}},
     }},
    {"apple",
     "",
     {
         {"laptop",
          "9606",
          {{"macbook", "9604"},
           {"macbook air", "9605"},
           {"macbook pro", "9607"},
           {"powerbook", "9603"},
           {"ibook", "11003"}}},
         {"minden egyben", "9305", {{"imac", "9308"}}},
         {"netbook", "", {}},
         {"tablet", "9421", {}},
     }},
    {"asus",
     "",
     {
         {"laptop",
          "9609",
          {{"a", "11495"},
           {"g", "9613"},
           {"k", "9612"},
           {"n", "9611"},
           {"p", "11496"},
           {"u", "9614"},
           {"x", "9608"}}},
         {"minden egyben", "9313", {}},
         {"netbook", "", {{"eee", "9610"}}},
         {"tablet", "9425", {}},
     }},
    {"toshiba",
     "9641",
     {
         {"laptop",
          "",
          {{"portege", "9646"}, {"qosmio", "9642"}, {"satellite", "9644"}, {"tecra", "9643"}}},
         {"minden egyben", "", {}},
         {"netbook", "", {}},
         {"tablet", "9435", {{"folio", "9951"}}},
     }},
    {"sony",
     "1550",
     {
         {"laptop", "", {}},
         {"minden egyben", "", {}},
         {"netbook", "", {}},
         {"tablet", "9420", {}},
     }},
    {"hp",
     "",
     {
         {"laptop",
          "9626",
          {{"elitebook", "10988"},
           {"envy", "9629"},
           {"pavilion", "9627"},
           {"probook", "10989"},
           {"compaq", "9630"}}},
         {"minden egyben",
          "9330",
          {{"compaq", "9324"},
           {"elite", "9327"},
           {"pavilion", "9329"},
           {"pro", "9326"},
           {"vectra", "9328"},
           {"workstation", "9325"}}},
         {"netbook", "", {{"mini", "9628"}}},
         {"tablet", "9954", {{"touchpad", "9953"}, {"touchsmart", "9955"}}},
     }},
    {"msi",
     "",
     {
         {"laptop", "9635", {{"c", "9639"}, {"f", "9637"}, {"g", "9636"}, {"x", "9638"}}},
         {"minden egyben", "9341", {{"hetis", "9340"}, {"titan", "9339"}, {"wind", "9338"}}},
         {"netbook", "", {{"wind", "9640"}}},
         {"tablet", "9420", {}},
     }},
    {"dell",
     "",
     {
         {"laptop",
          "9616",
          {{"alienware", "9621"},
           {"inspiron", "9615"},
           {"latitude", "9620"},
           {"precision", "11179"},
           {"vostro", "9619"},
           {"xps", "9617"},
           {"studio", "9618"}}},
         {"minden egyben",
          "9318",
          {{"optiplex", "9336"}, {"precision", "9317"}, {"vostro", "9316"}}},
         {"tablet", "9426", {}},
     }},
    {"google", "", {{"tablet", "9426", {}}}},
    {"lenovo",
     "425",
     {
         {"laptop", "9631", {{"essential", "9632"}, {"ideapad", "9633"}, {"thinkpad", "9634"}}},
         {"minden egyben",
          "9335",
          {{"thinkcentre", "9332"}, {"desktop", "9334"}, {"mini", "9333"}}},
         {"tablet", "9430", {}},
     }},
    {"packard bell",
     "10082",
     {
         {"laptop", "10082", {}},
         {"tablet", "11147", {{"prestigio", "9991"}}},
     }},
    {"samsung", "8296", {{"tablet", "", {{"galaxy", "9434"}}}}},
    {"schenker", "424", {{"tablet", "9420", {}}}},
    {"yarvik",
     "9420",
     {
         {"laptop", "", {}},
         {"minden egyben", "", {}},
         {"netbook", "", {}},
         {"tablet", "", {}},
     }},
};

// Overwrites `result` with `number` unless the level has none.
void set_number(std::string& result, std::string_view number) {
  if (!number.empty())
    result = number;
}

}  // namespace

std::string GET_CATEGORY_NUMBER(const std::string& MANUFACT, const std::string& BEMENET,
                                const std::string& TERMEKCSOPORT1, const std::string&) {
  std::string result;
  for (const Brand& brand : kBrands) {
    if (!contains_ci(MANUFACT, brand.key))
      continue;
    set_number(result, brand.number);
    for (const ProductGroup& group : brand.groups) {
      if (!contains_ci(TERMEKCSOPORT1, group.key))
        continue;
      set_number(result, group.number);
      for (const Series& series : group.series) {
        if (contains_ci(BEMENET, series.key))
          set_number(result, series.number);
      }
    }
    break;  // the first brand the manufacturer holds decides alone
  }
  return result;
}

}  // namespace talmo
