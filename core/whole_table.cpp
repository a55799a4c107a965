#include "core/whole_table.h"

#include "core/collation.h"

namespace talmo {

WholeTable::WholeTable(Connection& connection, const std::string& table,
                       const std::string& id_column)
    : rows_(connection.select("SELECT * FROM " + table + " ORDER BY " + id_column + ";")) {}

std::optional<std::size_t> WholeTable::column(const std::string& name) {
  const auto known = columns_by_name_.find(name);
  if (known != columns_by_name_.end())
    return known->second;
  std::optional<std::size_t> position;
  for (std::size_t c = 0; c < rows_.column_names.size() && !position; ++c) {
    if (equals_ci(rows_.column_names[c], name))
      position = c;
  }
  columns_by_name_.emplace(name, position);
  return position;
}

std::optional<std::span<const std::size_t>> WholeTable::rows_with_key(
    std::size_t column, const std::string& comparable) {
  auto index = text_indexes_.find(column);
  if (index == text_indexes_.end()) {
    std::optional<TextIndex> built{std::in_place};
    for (std::size_t r = 0; r < rows_.rows.size() && built; ++r) {
      const std::optional<std::string>& cell = rows_.rows[r][column];
      if (!cell)
        continue;  // NULL equals nothing
      if (const std::optional<std::string> key = comparable_key(*cell))
        (*built)[*key].push_back(r);
      else
        built.reset();
    }
    index = text_indexes_.emplace(column, std::move(built)).first;
  }
  if (!index->second)
    return std::nullopt;
  const auto found = index->second->find(comparable);
  if (found == index->second->end())
    return std::span<const std::size_t>();
  return std::span<const std::size_t>(found->second);
}

std::optional<std::size_t> WholeTable::row_with_id(std::size_t column, std::int64_t value) {
  auto index = id_indexes_.find(column);
  if (index == id_indexes_.end()) {
    std::unordered_map<std::int64_t, std::size_t> built;
    for (std::size_t r = 0; r < rows_.rows.size(); ++r) {
      const std::optional<std::string>& cell = rows_.rows[r][column];
      if (cell)
        built.emplace(std::stoll(*cell), r);  // an integer key: the server's own digits
    }
    index = id_indexes_.emplace(column, std::move(built)).first;
  }
  const auto found = index->second.find(value);
  if (found == index->second.end())
    return std::nullopt;
  return found->second;
}

}  // namespace talmo
