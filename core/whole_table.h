#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/database.h"

namespace talmo {

// One of the shop's tables read whole, once, inside the run's snapshot, its rows in ascending
// order of its integer primary key: the order in which the server gives the rows of a statement
// on this table that asks for no order, and in which the newest row comes last.
class WholeTable {
 public:
  // Reads every row of `table`; raises DatabaseError.
  WholeTable(Connection& connection, const std::string& table, const std::string& id_column);

  const StringList& column_names() const { return rows_.column_names; }
  const std::vector<ResultSet::Row>& rows() const { return rows_.rows; }
  // The position of the column named `name` in any letter case, as the server finds columns.
  std::optional<std::size_t> column(const std::string& name);

  // The positions of the rows whose text column `column` the database finds equal to
  // `comparable` (a comparable_key), ascending. nullopt when some row of the table holds a key
  // in that column that cannot be compared with certainty.
  std::optional<std::span<const std::size_t>> rows_with_key(std::size_t column,
                                                            const std::string& comparable);
  // The position of the row whose integer column `column` (unique) holds `value`, or nullopt.
  std::optional<std::size_t> row_with_id(std::size_t column, std::int64_t value);

 private:
  using TextIndex = std::unordered_map<std::string, std::vector<std::size_t>>;

  ResultSet rows_;
  std::unordered_map<std::string, std::optional<std::size_t>> columns_by_name_;
  // Built on first use, one per column asked for; nullopt for a column with an uncertain key.
  std::unordered_map<std::size_t, std::optional<TextIndex>> text_indexes_;
  std::unordered_map<std::size_t, std::unordered_map<std::int64_t, std::size_t>> id_indexes_;
};

}  // namespace talmo
