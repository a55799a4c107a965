#include "core/snapshot.h"

#include <algorithm>
#include <initializer_list>
#include <span>
#include <string_view>

#include "core/collation.h"
#include "core/errors.h"

namespace talmo {
namespace {

// How a row's key stands to the key a statement asks for.
enum class KeyMatch { yes, no, unknown };

KeyMatch key_match(const std::optional<std::string>& cell, std::string_view wanted) {
  if (!cell)
    return KeyMatch::no;  // NULL equals nothing
  const std::optional<std::string> key = comparable_key(*cell);
  if (!key)
    return KeyMatch::unknown;
  return *key == wanted ? KeyMatch::yes : KeyMatch::no;
}

// A test of a statement's WHERE clause: the row's key in `column` equals `wanted`.
struct KeyTest {
  std::size_t column;
  std::string_view wanted;
};

// Whether a row passes every key test: yes, no, or unknown when no test says no and one cannot
// be decided.
KeyMatch row_match(const ResultSet::Row& cells, std::initializer_list<KeyTest> tests) {
  KeyMatch result = KeyMatch::yes;
  for (const KeyTest& test : tests) {
    const KeyMatch match = key_match(cells[test.column], test.wanted);
    if (match == KeyMatch::no)
      return KeyMatch::no;
    if (match == KeyMatch::unknown)
      result = KeyMatch::unknown;
  }
  return result;
}

// The answer that gives column `value` (named `name`) of the `candidates` of `table` passing
// every test, in their order, or of the last of them alone (the newest, ids ascending) when
// `newest_only`. nullopt when a test cannot be decided for some candidate.
std::optional<ResultSet> column_of_passing_rows(const WholeTable& table,
                                                std::span<const std::size_t> candidates,
                                                std::initializer_list<KeyTest> tests,
                                                std::size_t value, const std::string& name,
                                                bool newest_only) {
  ResultSet result;
  result.column_names = {name};
  std::optional<std::size_t> newest;
  for (const std::size_t row : candidates) {
    const ResultSet::Row& cells = table.rows()[row];
    const KeyMatch match = row_match(cells, tests);
    if (match == KeyMatch::unknown)
      return std::nullopt;
    if (match == KeyMatch::no)
      continue;
    if (newest_only)
      newest = row;
    else
      result.rows.push_back({cells[value]});
  }
  if (newest)
    result.rows.push_back({table.rows()[*newest][value]});
  return result;
}

// The key a value spliced between quotes stands for: the value itself when it holds no quote
// or backslash, in its comparable form.
std::optional<std::string> literal_key(const std::string& value) {
  if (value.find_first_of("'\\") != std::string::npos)
    return std::nullopt;
  return comparable_key(value);
}

// A plain column name, spliced into a statement as it is.
bool is_identifier(const std::string& name) {
  return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
  });
}

}  // namespace

Snapshot::Snapshot(Connection& connection) : connection_(connection) {}

Snapshot::~Snapshot() = default;

std::shared_ptr<const ResultSet> Snapshot::answer(const Statement& statement,
                                                  const std::string& sent) {
  if (std::optional<ResultSet> worked_out = answer_from_tables(statement))
    return std::make_shared<const ResultSet>(std::move(*worked_out));
  return answer_by_text(sent);
}

std::shared_ptr<const ResultSet> Snapshot::answer_by_text(const std::string& sent) {
  auto known = answers_by_text_.find(sent);
  if (known == answers_by_text_.end()) {
    Answer answer;
    // The refusal is remembered with its message: the statement would fail so every time. A
    // lost connection is no answer; it ends the run.
    try {
      answer = std::make_shared<const ResultSet>(connection_.select(sent));
    } catch (const ConnectionLost&) {
      throw;
    } catch (const DatabaseError& error) {
      answer = std::string(error.what());
    }
    known = answers_by_text_.emplace(sent, std::move(answer)).first;
  }
  if (const std::string* refusal = std::get_if<std::string>(&known->second))
    throw DatabaseError(*refusal);
  return std::get<std::shared_ptr<const ResultSet>>(known->second);
}

std::optional<ResultSet> Snapshot::answer_from_tables(const Statement& statement) {
  // Only the catalogue builds statements of these kinds, so their parameters say what their
  // text says.
  const StringList& p = statement.parameters();
  const StatementKind kind = statement.kind();
  if (kind == StatementKind::product_columns && p.size() >= 2)
    return product_columns(p.data(), p.size() - 1, p.back());
  if (p.size() == 1) {
    switch (kind) {
      case StatementKind::price_amounts: {
        // One row at most: the id is the primary key, so its order and limit change nothing.
        const StringList& columns = statements::price_amount_columns();
        return product_columns(columns.data(), columns.size(), p[0]);
      }
      case StatementKind::level_zero_categories:
        return level_zero_categories(p[0]);
      case StatementKind::product_currency:
        return product_currency(p[0]);
      default:
        return std::nullopt;
    }
  }
  if (p.size() == 2) {
    switch (kind) {
      case StatementKind::product_in_category:
        return product_in_category(p[0], p[1]);
      case StatementKind::fixed_price:
        return fixed_price(p[0], p[1]);
      case StatementKind::extra_texts:
        return extra_texts(p[0], p[1]);
      default:
        return std::nullopt;
    }
  }
  return std::nullopt;
}

std::optional<ResultSet> Snapshot::product_columns(const std::string* columns, std::size_t count,
                                                   const std::string& IDX) {
  const std::optional<std::int64_t> id_value = canonical_id_value(IDX);
  if (!id_value)
    return std::nullopt;
  WholeTable* products_table = table(products_, "laptop_adatbazis", "id");
  if (products_table == nullptr)
    return std::nullopt;
  WholeTable& products = *products_table;
  ResultSet result;
  std::vector<std::size_t> positions;
  for (const std::string& name : std::span(columns, count)) {
    const std::optional<std::size_t> position = products.column(name);
    if (!is_identifier(name) || !position)
      return std::nullopt;  // the server's error message is the server's to give
    positions.push_back(*position);
    result.column_names.push_back(name);  // named as the statement writes it
  }
  const std::optional<std::size_t> id = products.column("id");
  if (!id)
    return std::nullopt;
  if (const std::optional<std::size_t> row = products.row_with_id(*id, *id_value)) {
    ResultSet::Row& cells = result.rows.emplace_back();
    for (const std::size_t position : positions)
      cells.push_back(products.rows()[*row][position]);
  }
  return result;
}

std::optional<ResultSet> Snapshot::level_zero_categories(const std::string& IDX) {
  if (!canonical_id_value(IDX))
    return std::nullopt;
  WholeTable* links_table = table(category_links_, "product_categories", "prod_cat_id");
  if (links_table == nullptr)
    return std::nullopt;
  WholeTable& links = *links_table;
  WholeTable* categories_table = table(categories_, "categories", "cat_id");
  if (categories_table == nullptr)
    return std::nullopt;
  WholeTable& categories = *categories_table;
  const auto product = links.column("prod_cat_product_id");
  const auto linked = links.column("prod_cat_category_id");
  const auto cat_id = categories.column("cat_id");
  const auto level = categories.column("cat_category_level");
  if (!product || !linked || !cat_id || !level)
    return std::nullopt;
  const std::optional<std::span<const std::size_t>> candidates = links.rows_with_key(*product, IDX);
  if (!candidates)
    return std::nullopt;
  struct Joined {
    std::int64_t cat_id;
    std::size_t link;
    std::size_t category;
  };
  std::vector<Joined> joined;
  for (const std::size_t link : *candidates) {
    const std::optional<std::string>& category_text = links.rows()[link][*linked];
    if (!category_text)
      continue;  // joins no category, and the level test drops the row
    // The text is compared with the integer cat_id as a number: only plain digits are certain.
    const std::optional<std::int64_t> value = digits_value(*category_text);
    if (!value)
      return std::nullopt;
    const std::optional<std::size_t> category = categories.row_with_id(*cat_id, *value);
    if (!category)
      continue;
    const KeyMatch on_level_zero = key_match(categories.rows()[*category][*level], "0");
    if (on_level_zero == KeyMatch::unknown)
      return std::nullopt;
    if (on_level_zero == KeyMatch::yes)
      joined.push_back({*value, link, *category});
  }
  std::stable_sort(joined.begin(), joined.end(),
                   [](const Joined& a, const Joined& b) { return a.cat_id > b.cat_id; });
  // Two links to one category tie in the order, which the statement leaves to the server.
  for (std::size_t i = 1; i < joined.size(); ++i) {
    if (joined[i].cat_id == joined[i - 1].cat_id)
      return std::nullopt;
  }
  ResultSet result;
  result.column_names = links.column_names();
  result.column_names.insert(result.column_names.end(), categories.column_names().begin(),
                             categories.column_names().end());
  for (const Joined& row : joined) {
    ResultSet::Row cells = links.rows()[row.link];
    const ResultSet::Row& category = categories.rows()[row.category];
    cells.insert(cells.end(), category.begin(), category.end());
    result.rows.push_back(std::move(cells));
  }
  return result;
}

std::optional<ResultSet> Snapshot::product_in_category(const std::string& IDX,
                                                       const std::string& category_id) {
  const std::optional<std::string> wanted = literal_key(category_id);
  if (!canonical_id_value(IDX) || !wanted)
    return std::nullopt;
  WholeTable* links = table(category_links_, "product_categories", "prod_cat_id");
  if (links == nullptr)
    return std::nullopt;
  const auto id = links->column("prod_cat_id");
  const auto type = links->column("prod_cat_type_id");
  const auto product = links->column("prod_cat_product_id");
  const auto category = links->column("prod_cat_category_id");
  if (!id || !type || !product || !category)
    return std::nullopt;
  const std::optional<std::span<const std::size_t>> candidates =
      links->rows_with_key(*product, IDX);
  if (!candidates)
    return std::nullopt;
  // No order asked: the server gives these rows by ascending prod_cat_id, as they stand here.
  return column_of_passing_rows(*links, *candidates, {{*type, "0"}, {*category, *wanted}}, *id,
                                "prod_cat_id", false);
}

std::optional<ResultSet> Snapshot::product_currency(const std::string& IDX) {
  if (!canonical_id_value(IDX))
    return std::nullopt;
  WholeTable* currencies = table(currencies_, "product_valuta", "prod_val_id");
  if (currencies == nullptr)
    return std::nullopt;
  const auto type = currencies->column("prod_val_product_type_id");
  const auto product = currencies->column("prod_val_product_id");
  const auto currency = currencies->column("prod_val_valuta");
  if (!type || !product || !currency)
    return std::nullopt;
  const std::optional<std::span<const std::size_t>> candidates =
      currencies->rows_with_key(*product, IDX);
  if (!candidates)
    return std::nullopt;
  return column_of_passing_rows(*currencies, *candidates, {{*type, "0"}}, *currency,
                                "prod_val_valuta", true);
}

std::optional<ResultSet> Snapshot::fixed_price(const std::string& SITE, const std::string& IDX) {
  const std::string column_name = "fix_ar_" + SITE;
  if (!canonical_id_value(IDX) || !is_identifier(SITE))
    return std::nullopt;
  WholeTable* prices = table(fixed_prices_, "fix_arak", "fix_id");
  if (prices == nullptr)
    return std::nullopt;
  const auto price = prices->column(column_name);
  const auto product = prices->column("fix_product_id");
  const auto type = prices->column("fix_product_type_id");
  if (!price || !product || !type)
    return std::nullopt;
  const std::optional<std::span<const std::size_t>> candidates =
      prices->rows_with_key(*product, IDX);
  if (!candidates)
    return std::nullopt;
  return column_of_passing_rows(*prices, *candidates, {{*type, "0"}}, *price, column_name, true);
}

std::optional<ResultSet> Snapshot::extra_texts(const std::string& IDX, const std::string& SITE) {
  const std::optional<std::string> site = literal_key(SITE);
  if (!canonical_id_value(IDX) || !site)
    return std::nullopt;
  WholeTable* extras = table(extra_texts_, "extra_jellemzo", "ex_id");
  if (extras == nullptr)
    return std::nullopt;
  const auto type = extras->column("ex_product_type_id");
  const auto product = extras->column("ex_product_id");
  const auto site_column = extras->column("ex_site");
  const auto text = extras->column("ex_text");
  if (!type || !product || !site_column || !text)
    return std::nullopt;
  const std::optional<std::span<const std::size_t>> candidates =
      extras->rows_with_key(*product, IDX);
  if (!candidates)
    return std::nullopt;
  // No order asked: the server gives these rows by ascending ex_id, as they stand here.
  return column_of_passing_rows(*extras, *candidates, {{*type, "0"}, {*site_column, *site}}, *text,
                                "ex_text", false);
}

WholeTable* Snapshot::table(TableSlot& slot, const char* name, const char* id_column) {
  if (!slot.read) {
    slot.read = true;
    // A table that cannot be read whole leaves its statements to the server, which then gives
    // each its own answer or message.
    try {
      slot.table = std::make_unique<WholeTable>(connection_, name, id_column);
    } catch (const ConnectionLost&) {
      throw;
    } catch (const DatabaseError&) {
    }
  }
  return slot.table.get();
}

const Snapshot::BuiltText* Snapshot::recall(const std::string& key) const {
  const auto known = built_texts_.find(key);
  return known == built_texts_.end() ? nullptr : &known->second;
}

void Snapshot::remember(const std::string& key, BuiltText built) {
  built_texts_.insert_or_assign(key, std::move(built));
}

}  // namespace talmo
