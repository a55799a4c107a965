// The statements whose texts no feed or console shows whole elsewhere, by exact text, kind and
// spliced values. No database: only texts are compared.
#include "core/statements.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace talmo {
namespace {

TEST(Statements, EachKindSplicesItsValuesAsTheyAre) {
  using K = StatementKind;
  namespace s = statements;
  struct Case {
    Statement built;
    StatementKind kind;
    StringList parameters;
    std::string text;
  };
  for (const Case& c : std::vector<Case>{
           {s::product_ids(),
            K::product_ids,
            {},
            "SELECT id FROM laptop_adatbazis ORDER BY id DESC;"},
           {s::product_columns({"sorszam", "gyarto"}, "7"),
            K::product_columns,
            {"sorszam", "gyarto", "7"},
            "SELECT sorszam, gyarto FROM laptop_adatbazis WHERE id='7';"},
           // Found by fuzzing: a leading empty name still gets its separator.
           {s::product_columns({"", "gyarto"}, "7"),
            K::product_columns,
            {"", "gyarto", "7"},
            "SELECT , gyarto FROM laptop_adatbazis WHERE id='7';"},
           {s::translation("Kijelzõ részletei:", "SK"),
            K::translation,
            {"Kijelzõ részletei:", "SK"},
            "SELECT forditas FROM laptop_adatbazis_forditasok WHERE szocikk='Kijelzõ részletei:' "
            "AND language='SK' ORDER BY id DESC LIMIT 1;"},
           {s::series_parent("Asus", ""),
            K::series_parent,
            {"Asus", ""},
            "SELECT cat_id FROM categories WHERE cat_category_level='1' AND "
            "cat_category_name='Asus ';"},
           {s::series_names("41"),
            K::series_names,
            {"41"},
            "SELECT cat_category_name FROM categories WHERE cat_category_level='2' AND "
            "cat_category_parent_id='41';"},
           {s::category_id("Ultrabook", "0"),
            K::category_id,
            {"Ultrabook", "0"},
            "SELECT cat_id FROM categories WHERE cat_category_name='Ultrabook' AND "
            "cat_category_level='0' ORDER BY cat_id DESC LIMIT 1;"},
           {s::exchange_rate("USD", "HUF"),
            K::exchange_rate,
            {"USD", "HUF"},
            "SELECT er_value FROM exchange_rates WHERE er_from='USD' AND er_to='HUF' ORDER BY "
            "er_id DESC LIMIT 1;"},
           {s::profit_margin("DE", "SK"),
            K::profit_margin,
            {"DE", "SK"},
            "SELECT profit_value FROM profit_margins WHERE profit_from='DE' AND profit_to='SK' "
            "ORDER BY profit_id DESC LIMIT 1;"},
           {s::fixed_price("cz", "9"),
            K::fixed_price,
            {"cz", "9"},
            "SELECT fix_ar_cz FROM fix_arak WHERE fix_product_id='9' AND fix_product_type_id='0' "
            "ORDER BY fix_id DESC LIMIT 1;"},
           {s::tax("sk"),
            K::tax,
            {"sk"},
            "SELECT tax_value FROM taxes WHERE tax_country='sk' ORDER BY tax_id DESC LIMIT 1;"},
       }) {
    EXPECT_EQ(c.built.text(), c.text);
    EXPECT_EQ(c.built.kind(), c.kind) << c.text;
    EXPECT_EQ(c.built.parameters(), c.parameters) << c.text;
  }
}

}  // namespace
}  // namespace talmo
