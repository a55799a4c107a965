#include "core/statements.h"

namespace talmo::statements {
namespace {

// Columns joined by ", ", one separator between every two, even around an empty name.
std::string column_list_of(const StringList& columns) {
  std::string list;
  for (std::size_t i = 0; i < columns.size(); ++i)
    list += (i == 0 ? "" : ", ") + columns[i];
  return list;
}

}  // namespace

Statement product_ids() {
  return {StatementKind::product_ids, {}, "SELECT id FROM laptop_adatbazis ORDER BY id DESC;"};
}

Statement product_columns(const StringList& columns, const std::string& IDX) {
  const std::string column_list = column_list_of(columns);
  StringList parameters = columns;
  parameters.push_back(IDX);
  return {StatementKind::product_columns, std::move(parameters),
          "SELECT " + column_list + " FROM laptop_adatbazis WHERE id='" + IDX + "';"};
}

Statement price_amounts(const std::string& IDX) {
  return {StatementKind::price_amounts,
          {IDX},
          "SELECT " + column_list_of(price_amount_columns()) + " FROM laptop_adatbazis WHERE id='" +
              IDX + "' ORDER BY id DESC LIMIT 1;"};
}

const StringList& price_amount_columns() {
  static const StringList columns = {"netto_darabar", "uj_netto_darabar", "kedvezmenyek",
                                     "tobbletnyeresegek"};
  return columns;
}

Statement translation(const std::string& word, const std::string& language) {
  return {StatementKind::translation,
          {word, language},
          "SELECT forditas FROM laptop_adatbazis_forditasok WHERE szocikk='" + word +
              "' AND language='" + language + "' ORDER BY id DESC LIMIT 1;"};
}

Statement level_zero_categories(const std::string& IDX) {
  return {StatementKind::level_zero_categories,
          {IDX},
          "SELECT * FROM product_categories a LEFT JOIN categories b ON "
          "a.prod_cat_category_id=b.cat_id WHERE a.prod_cat_product_id='" +
              IDX + "' AND b.cat_category_level='0' ORDER BY b.cat_id DESC;"};
}

Statement series_parent(const std::string& manufacturer, const std::string& kind) {
  return {StatementKind::series_parent,
          {manufacturer, kind},
          "SELECT cat_id FROM categories WHERE cat_category_level='1' AND cat_category_name='" +
              manufacturer + " " + kind + "';"};
}

Statement series_names(const std::string& parent_id) {
  return {StatementKind::series_names,
          {parent_id},
          "SELECT cat_category_name FROM categories WHERE cat_category_level='2' AND "
          "cat_category_parent_id='" +
              parent_id + "';"};
}

Statement category_id(const std::string& name, const std::string& level) {
  return {StatementKind::category_id,
          {name, level},
          "SELECT cat_id FROM categories WHERE cat_category_name='" + name +
              "' AND cat_category_level='" + level + "' ORDER BY cat_id DESC LIMIT 1;"};
}

Statement product_in_category(const std::string& IDX, const std::string& category_id) {
  return {StatementKind::product_in_category,
          {IDX, category_id},
          "SELECT prod_cat_id FROM product_categories WHERE prod_cat_type_id='0' AND "
          "prod_cat_product_id='" +
              IDX + "' AND prod_cat_category_id='" + category_id + "';"};
}

Statement product_currency(const std::string& IDX) {
  return {StatementKind::product_currency,
          {IDX},
          "SELECT prod_val_valuta FROM product_valuta WHERE prod_val_product_type_id='0' AND "
          "prod_val_product_id='" +
              IDX + "' ORDER BY prod_val_id DESC LIMIT 1;"};
}

Statement exchange_rate(const std::string& from, const std::string& to) {
  return {StatementKind::exchange_rate,
          {from, to},
          "SELECT er_value FROM exchange_rates WHERE er_from='" + from + "' AND er_to='" + to +
              "' ORDER BY er_id DESC LIMIT 1;"};
}

Statement profit_margin(const std::string& from, const std::string& to) {
  return {StatementKind::profit_margin,
          {from, to},
          "SELECT profit_value FROM profit_margins WHERE profit_from='" + from +
              "' AND profit_to='" + to + "' ORDER BY profit_id DESC LIMIT 1;"};
}

Statement fixed_price(const std::string& SITE, const std::string& IDX) {
  return {StatementKind::fixed_price,
          {SITE, IDX},
          "SELECT fix_ar_" + SITE + " FROM fix_arak WHERE fix_product_id='" + IDX +
              "' AND fix_product_type_id='0' ORDER BY fix_id DESC LIMIT 1;"};
}

Statement tax(const std::string& SITE) {
  return {
      StatementKind::tax,
      {SITE},
      "SELECT tax_value FROM taxes WHERE tax_country='" + SITE + "' ORDER BY tax_id DESC LIMIT 1;"};
}

Statement extra_texts(const std::string& IDX, const std::string& SITE) {
  return {StatementKind::extra_texts,
          {IDX, SITE},
          "SELECT ex_text FROM extra_jellemzo WHERE ex_product_type_id='0' AND ex_product_id='" +
              IDX + "' AND ex_site='" + SITE + "';"};
}

}  // namespace talmo::statements
