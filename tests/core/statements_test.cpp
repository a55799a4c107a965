// Every statement the tool sends, checked by its exact text, kind and spliced values; and how the
// cursor keeps one. No database: only texts are compared.
#include "core/statements.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/database.h"
#include "core/lookup.h"

namespace talmo {
namespace {

struct StatementCase {
  const char* what;
  Statement built;
  StatementKind kind;
  StringList parameters;
  std::string text;
};

TEST(Statements, EachKindSplicesItsValuesAsTheyAre) {
  using K = StatementKind;
  namespace s = statements;
  const std::vector<StatementCase> cases = {
      {"every product id",
       s::product_ids(),
       K::product_ids,
       {},
       "SELECT id FROM laptop_adatbazis ORDER BY id DESC;"},
      {"one column",
       s::product_columns({"gyarto"}, "12"),
       K::product_columns,
       {"gyarto", "12"},
       "SELECT gyarto FROM laptop_adatbazis WHERE id='12';"},
      {"several columns in the order given",
       s::product_columns({"sorszam", "gyarto", "nev", "tipusmegnevezes"}, "7"),
       K::product_columns,
       {"sorszam", "gyarto", "nev", "tipusmegnevezes", "7"},
       "SELECT sorszam, gyarto, nev, tipusmegnevezes FROM laptop_adatbazis WHERE id='7';"},
      {"an id with a quote breaks the text",
       s::product_columns({"3g"}, "1'"),
       K::product_columns,
       {"3g", "1'"},
       "SELECT 3g FROM laptop_adatbazis WHERE id='1'';"},
      {"an id with CRLF keeps it",
       s::product_columns({"usb"}, "1\r\n2"),
       K::product_columns,
       {"usb", "1\r\n2"},
       "SELECT usb FROM laptop_adatbazis WHERE id='1\r\n2';"},
      {"price amounts, newest row",
       s::price_amounts("5"),
       K::price_amounts,
       {"5"},
       "SELECT netto_darabar, uj_netto_darabar, kedvezmenyek, tobbletnyeresegek FROM "
       "laptop_adatbazis WHERE id='5' ORDER BY id DESC LIMIT 1;"},
      {"translation",
       s::translation("Garancia", "SK"),
       K::translation,
       {"Garancia", "SK"},
       "SELECT forditas FROM laptop_adatbazis_forditasok WHERE szocikk='Garancia' AND "
       "language='SK' ORDER BY id DESC LIMIT 1;"},
      {"translation keeps letters and case",
       s::translation("Kijelzõ részletei:", "hu"),
       K::translation,
       {"Kijelzõ részletei:", "hu"},
       "SELECT forditas FROM laptop_adatbazis_forditasok WHERE szocikk='Kijelzõ részletei:' AND "
       "language='hu' ORDER BY id DESC LIMIT 1;"},
      {"translation of a text with CR and LF",
       s::translation("táska\regér\nkábel", "SK"),
       K::translation,
       {"táska\regér\nkábel", "SK"},
       "SELECT forditas FROM laptop_adatbazis_forditasok WHERE szocikk='táska\regér\nkábel' AND "
       "language='SK' ORDER BY id DESC LIMIT 1;"},
      {"level-0 categories",
       s::level_zero_categories("3"),
       K::level_zero_categories,
       {"3"},
       "SELECT * FROM product_categories a LEFT JOIN categories b ON "
       "a.prod_cat_category_id=b.cat_id WHERE a.prod_cat_product_id='3' AND "
       "b.cat_category_level='0' ORDER BY b.cat_id DESC;"},
      {"series parent",
       s::series_parent("Asus", "Laptop"),
       K::series_parent,
       {"Asus", "Laptop"},
       "SELECT cat_id FROM categories WHERE cat_category_level='1' AND "
       "cat_category_name='Asus Laptop';"},
      {"series parent without a kind",
       s::series_parent("Asus", ""),
       K::series_parent,
       {"Asus", ""},
       "SELECT cat_id FROM categories WHERE cat_category_level='1' AND cat_category_name='Asus ';"},
      {"series names",
       s::series_names("41"),
       K::series_names,
       {"41"},
       "SELECT cat_category_name FROM categories WHERE cat_category_level='2' AND "
       "cat_category_parent_id='41';"},
      {"category id",
       s::category_id("Ultrabook", "0"),
       K::category_id,
       {"Ultrabook", "0"},
       "SELECT cat_id FROM categories WHERE cat_category_name='Ultrabook' AND "
       "cat_category_level='0' ORDER BY cat_id DESC LIMIT 1;"},
      {"category id of a name with a quote",
       s::category_id("O'Neil Laptop", "1"),
       K::category_id,
       {"O'Neil Laptop", "1"},
       "SELECT cat_id FROM categories WHERE cat_category_name='O'Neil Laptop' AND "
       "cat_category_level='1' ORDER BY cat_id DESC LIMIT 1;"},
      {"product in category",
       s::product_in_category("9", "17"),
       K::product_in_category,
       {"9", "17"},
       "SELECT prod_cat_id FROM product_categories WHERE prod_cat_type_id='0' AND "
       "prod_cat_product_id='9' AND prod_cat_category_id='17';"},
      {"product currency",
       s::product_currency("9"),
       K::product_currency,
       {"9"},
       "SELECT prod_val_valuta FROM product_valuta WHERE prod_val_product_type_id='0' AND "
       "prod_val_product_id='9' ORDER BY prod_val_id DESC LIMIT 1;"},
      {"exchange rate",
       s::exchange_rate("USD", "HUF"),
       K::exchange_rate,
       {"USD", "HUF"},
       "SELECT er_value FROM exchange_rates WHERE er_from='USD' AND er_to='HUF' ORDER BY er_id "
       "DESC LIMIT 1;"},
      {"profit margin",
       s::profit_margin("DE", "SK"),
       K::profit_margin,
       {"DE", "SK"},
       "SELECT profit_value FROM profit_margins WHERE profit_from='DE' AND profit_to='SK' ORDER "
       "BY profit_id DESC LIMIT 1;"},
      {"fixed price of a site's column",
       s::fixed_price("hu", "9"),
       K::fixed_price,
       {"hu", "9"},
       "SELECT fix_ar_hu FROM fix_arak WHERE fix_product_id='9' AND fix_product_type_id='0' "
       "ORDER BY fix_id DESC LIMIT 1;"},
      {"tax",
       s::tax("sk"),
       K::tax,
       {"sk"},
       "SELECT tax_value FROM taxes WHERE tax_country='sk' ORDER BY tax_id DESC LIMIT 1;"},
      {"extra texts",
       s::extra_texts("9", "hu"),
       K::extra_texts,
       {"9", "hu"},
       "SELECT ex_text FROM extra_jellemzo WHERE ex_product_type_id='0' AND ex_product_id='9' AND "
       "ex_site='hu';"},
  };
  for (const StatementCase& c : cases) {
    EXPECT_EQ(c.built.text(), c.text) << c.what;
    EXPECT_EQ(c.built.kind(), c.kind) << c.what;
    EXPECT_EQ(c.built.parameters(), c.parameters) << c.what;
  }
}

TEST(Statements, CursorKeepsTheStatementAndItsTextAsLines) {
  Connection connection;  // never opened: setting a statement does not touch the database
  Query query(connection);
  EXPECT_EQ(query.statement().kind(), StatementKind::unlisted);
  EXPECT_EQ(query.sql_text(), "");

  query.set_statement(statements::translation("táska\r\negér\rkábel\n", "SK"));
  EXPECT_EQ(query.statement().kind(), StatementKind::translation);
  EXPECT_EQ(query.statement().parameters(), (StringList{"táska\r\negér\rkábel\n", "SK"}));
  // CRLF, a lone CR and a lone LF inside a value each end a line of the kept text.
  EXPECT_EQ(query.sql_text(),
            "SELECT forditas FROM laptop_adatbazis_forditasok WHERE szocikk='táska\negér\nkábel\n"
            "' AND language='SK' ORDER BY id DESC LIMIT 1;\n");
  EXPECT_EQ(query_error_line(query, QueryErrorLine::plain, "ignored"),
            "Error in Query: \r\rSELECT forditas FROM laptop_adatbazis_forditasok WHERE "
            "szocikk='táska\negér\nkábel\n' AND language='SK' ORDER BY id DESC LIMIT 1;\n\r\r");

  query.set_statement(statements::product_columns({"published"}, "4"));
  EXPECT_EQ(query.statement().parameters(), (StringList{"published", "4"}));
  EXPECT_EQ(query.sql_text(), "SELECT published FROM laptop_adatbazis WHERE id='4';\n");
}

}  // namespace
}  // namespace talmo
