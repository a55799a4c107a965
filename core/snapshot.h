#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <variant>

#include "core/database.h"
#include "core/statements.h"
#include "core/whole_table.h"

namespace talmo {

// What one run knows for certain while its consistent snapshot lasts: the answers to its
// statements, and texts built from them. Owned by the connection while a Transaction keeps the
// snapshot (Connection::snapshot()).
//
// The per-product statements (the main table's columns by id, the product's currency, fixed
// price, extra texts and category links) are answered from whole tables read once, on first
// need. Every other statement goes to the server once; later the same text gets the same answer.
// A per-product statement whose answer cannot be worked out with certainty (an IDX that is not a
// plain id, a key the database might compare otherwise, a column the table lacks, rows whose
// order the statement leaves open) is treated as one of those others.
class Snapshot {
 public:
  explicit Snapshot(Connection& connection);
  ~Snapshot();

  // The answer to `statement` exactly as the server gives it inside the snapshot: the same
  // columns, rows and row order. `sent` is the text a cursor sends for it. A statement the server
  // refused raises DatabaseError with the server's message, again on every later call.
  std::shared_ptr<const ResultSet> answer(const Statement& statement, const std::string& sent);

  // A text a higher layer built inside the snapshot, with everything it printed meanwhile and
  // the statement the cursor held when it was done.
  struct BuiltText {
    std::string text;
    std::string console;
    Statement last_statement;
  };
  // The text remembered under `key`, or nullptr.
  const BuiltText* recall(const std::string& key) const;
  void remember(const std::string& key, BuiltText built);

 private:
  // A statement's answer, or the server's message when it refused it.
  using Answer = std::variant<std::shared_ptr<const ResultSet>, std::string>;

  std::shared_ptr<const ResultSet> answer_by_text(const std::string& sent);
  // The answer worked out from the whole tables, or nullopt where that is not certain.
  std::optional<ResultSet> answer_from_tables(const Statement& statement);
  std::optional<ResultSet> product_columns(const std::string* columns, std::size_t count,
                                           const std::string& IDX);
  std::optional<ResultSet> level_zero_categories(const std::string& IDX);
  std::optional<ResultSet> product_in_category(const std::string& IDX,
                                               const std::string& category_id);
  std::optional<ResultSet> product_currency(const std::string& IDX);
  std::optional<ResultSet> fixed_price(const std::string& SITE, const std::string& IDX);
  std::optional<ResultSet> extra_texts(const std::string& IDX, const std::string& SITE);

  // A table read whole on first need; empty when that read failed.
  struct TableSlot {
    bool read = false;
    std::unique_ptr<WholeTable> table;
  };
  WholeTable* table(TableSlot& slot, const char* name, const char* id_column);

  Connection& connection_;
  std::unordered_map<std::string, Answer> answers_by_text_;
  std::map<std::string, BuiltText, std::less<>> built_texts_;
  TableSlot products_;
  TableSlot currencies_;
  TableSlot fixed_prices_;
  TableSlot category_links_;
  TableSlot categories_;
  TableSlot extra_texts_;
};

}  // namespace talmo
