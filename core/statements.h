#pragma once

#include <string>
#include <utility>

#include "core/strings.h"

// Every statement the tool sends to the shop's database is built here, one function per kind.
//
// Values are spliced in as they are, between single quotes, with no escaping at all. They are
// product ids, site and currency codes, and names that come from the shop's own tables or from
// the tool's fixed texts. A quote inside a value breaks the statement: the lookup running it
// prints its error line and gives its default. The shop has always relied on this, and the
// session only reads, so a broken statement can never change data. Case is not converted here
// either: callers pass the values exactly as they must stand in the text.
//
// A statement's parameters are the values spliced into it, in the order they stand in its text,
// a list of columns counting as one parameter per column. Each function below takes them in the
// same order.

namespace talmo {

// What a statement asks for, so a caller can tell known statements apart without reading SQL.
enum class StatementKind {
  product_ids,
  product_columns,
  price_amounts,
  translation,
  level_zero_categories,
  series_parent,
  series_names,
  category_id,
  product_in_category,
  product_currency,
  exchange_rate,
  profit_margin,
  fixed_price,
  tax,
  extra_texts,
  // Not built by this module: the empty statement of a new cursor, or a test's own statement.
  unlisted,
};

// One statement: its kind, the values spliced into it and its exact text.
class Statement {
 public:
  // The functions below build every statement the tool runs; build one directly only for an
  // unlisted statement, as tests do for a statement of their own.
  Statement(StatementKind kind, StringList parameters, std::string text)
      : kind_(kind), parameters_(std::move(parameters)), text_(std::move(text)) {}

  StatementKind kind() const { return kind_; }
  const StringList& parameters() const { return parameters_; }
  const std::string& text() const { return text_; }

  bool operator==(const Statement&) const = default;

 private:
  StatementKind kind_;
  StringList parameters_;
  std::string text_;
};

namespace statements {

// Every product id of the main table, highest first. No parameters.
Statement product_ids();

// The main table's `columns` of product `IDX`, joined by ", " in the order given.
// Parameters: each column, then IDX.
Statement product_columns(const StringList& columns, const std::string& IDX);

// Old and new net price, discounts and extra profits of product `IDX`, newest row.
// Parameters: IDX.
Statement price_amounts(const std::string& IDX);
// The columns price_amounts asks for, in its order.
const StringList& price_amount_columns();

// The newest translation of `word` into `language` (stored upper case: "HU", "SK", "CZ").
// Parameters: word, language.
Statement translation(const std::string& word, const std::string& language);

// Every level-0 category row of product `IDX` joined to its category, highest cat_id first.
// Parameters: IDX.
Statement level_zero_categories(const std::string& IDX);

// The cat_id of the level-1 category named `manufacturer` + " " + `kind` (as "Asus Laptop").
// Parameters: manufacturer, kind.
Statement series_parent(const std::string& manufacturer, const std::string& kind);

// The names of the level-2 categories (series) under category `parent_id`, in no set order.
// Parameters: parent_id.
Statement series_names(const std::string& parent_id);

// The highest cat_id of the categories named `name` on `level` ("0", "1" or "2").
// Parameters: name, level.
Statement category_id(const std::string& name, const std::string& level);

// Product `IDX`'s filings under category `category_id`. Parameters: IDX, category_id.
Statement product_in_category(const std::string& IDX, const std::string& category_id);

// The newest purchase currency of product `IDX`. Parameters: IDX.
Statement product_currency(const std::string& IDX);

// The newest rate from currency `from` to currency `to`. Parameters: from, to.
Statement exchange_rate(const std::string& from, const std::string& to);

// The newest margin from warehouse country `from` to site `to` (upper case).
// Parameters: from, to.
Statement profit_margin(const std::string& from, const std::string& to);

// The newest fixed price of product `IDX`, from column "fix_ar_" + `SITE`. Parameters: SITE, IDX.
Statement fixed_price(const std::string& SITE, const std::string& IDX);

// The newest tax percent of `SITE` (as the run passes it, lower case). Parameters: SITE.
Statement tax(const std::string& SITE);

// Every extra text of product `IDX` for `SITE`, in the database's order. Parameters: IDX, SITE.
Statement extra_texts(const std::string& IDX, const std::string& SITE);

}  // namespace statements
}  // namespace talmo
