// The Vatera auction file: 31 fields joined by ";" with nothing quoted, so a ";" inside a value
// moves every later field to the wrong column. The first thirty columns are checked against what
// each must hold; when a title or product id holds a ";", the record is read again with those
// pieces put back together, so the report names the cause rather than the columns it moved.
#include <array>
#include <string_view>

#include "feedcheck/item_checker.h"
#include "feedcheck/value_checks.h"

namespace talmo::feedcheck {
namespace {

enum class Holds { Constant, Empty, Title, Price, CategoryCode, Warranty, Image, Key, Description };

struct VateraColumn {
  const char* name;
  Holds holds;
  const char* constant = "";
};

constexpr std::size_t kColumnCount = 31;
constexpr std::array<VateraColumn, kColumnCount> kColumns = {{
    {"Vatera seller id", Holds::Constant, "7937228"},
    {"product title", Holds::Title},
    {"subtitle", Holds::Empty},
    {"quantity", Holds::Constant, "5"},
    {"starting price", Holds::Price},
    {"minimum price", Holds::Price},
    {"buy-now price", Holds::Price},
    {"bid increment", Holds::Constant, "0"},
    {"auction start", Holds::Constant, "0"},
    {"auction duration", Holds::Constant, "1"},
    {"category code", Holds::CategoryCode},
    {"county", Holds::Constant, "1"},
    {"country code", Holds::Constant, "506"},
    {"shipping template id", Holds::Constant, "11399747"},
    {"number of relists", Holds::Constant, "1"},
    {"highlights", Holds::Constant, "0"},
    {"product attributes", Holds::Constant, "664"},
    {"warranty", Holds::Warranty},
    {"accept my offer", Holds::Empty},
    {"image 1", Holds::Image},
    {"image 2", Holds::Image},
    {"image 3", Holds::Image},
    {"image 4", Holds::Image},
    {"product page template id", Holds::Constant, "0"},
    {"own product id", Holds::Key},
    {"category-specific properties", Holds::Empty},
    {"image 5", Holds::Empty},
    {"image 6", Holds::Empty},
    {"image 7", Holds::Empty},
    {"image 8", Holds::Empty},
    {"description", Holds::Description},
}};

// Columns whose free text may hold a stray ";": the title and the product id.
constexpr std::array<std::size_t, 2> kTextColumns = {1, 24};
constexpr std::size_t kKeyColumn = 24;
constexpr std::size_t kPriceColumn = 4;
constexpr std::size_t kMaxShift = 8;

using Fields = std::vector<std::string>;

std::string label(std::size_t column) {
  return "column " + std::to_string(column + 1) + " (" + kColumns[column].name + ")";
}

// Splits `record` at its first `separators` ";"; the rest, ";" included, is the last field.
Fields split(std::string_view record, std::size_t separators) {
  Fields fields;
  std::size_t start = 0;
  while (fields.size() < separators) {
    const std::size_t end = record.find(';', start);
    if (end == std::string_view::npos)
      break;
    fields.emplace_back(record.substr(start, end - start));
    start = end + 1;
  }
  fields.emplace_back(record.substr(start));
  return fields;
}

bool all_digits(const std::string& text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

// What the column must hold but does not, or "" when the value fits the record's layout.
std::string layout_mismatch(std::size_t column, const std::string& value) {
  const VateraColumn& spec = kColumns[column];
  switch (spec.holds) {
    case Holds::Constant:
      return value == spec.constant ? "" : std::string("should be \"") + spec.constant + "\"";
    case Holds::Empty:
      return value.empty() ? "" : "should be empty";
    case Holds::CategoryCode:
      return value.empty() || all_digits(value) ? "" : "should be a category number";
    case Holds::Warranty:
      return value == "7" || value == "8" || value == "9" ? "" : "should be 7, 8 or 9";
    default:
      return "";
  }
}

// The first column (of the thirty before the description) that breaks the layout, or -1.
int first_mismatch(const Fields& fields) {
  for (std::size_t column = 0; column + 1 < kColumnCount; ++column) {
    if (!layout_mismatch(column, fields[column]).empty())
      return static_cast<int>(column);
  }
  return -1;
}

// The record read with `extra` more ";" inside column `text_column`, when that fits the layout.
std::optional<Fields> realigned(std::string_view record, std::size_t text_column,
                                std::size_t extra) {
  Fields pieces = split(record, kColumnCount - 1 + extra);
  if (pieces.size() != kColumnCount + extra)
    return std::nullopt;
  Fields fields(pieces.begin(), pieces.begin() + static_cast<long>(text_column));
  std::string joined = pieces[text_column];
  for (std::size_t i = 1; i <= extra; ++i)
    joined += ";" + pieces[text_column + i];
  fields.push_back(joined);
  fields.insert(fields.end(), pieces.begin() + static_cast<long>(text_column + extra + 1),
                pieces.end());
  if (first_mismatch(fields) >= 0)
    return std::nullopt;
  return fields;
}

void check_values(const Fields& fields, std::vector<Finding>& findings) {
  for (std::size_t column = 0; column < kColumnCount; ++column) {
    Field field{"", fields[column]};
    switch (kColumns[column].holds) {
      case Holds::Title:
      case Holds::Key:
      case Holds::Description:
        check_present(&field, label(column), findings);
        break;
      case Holds::CategoryCode:
        if (field.value.empty())
          check_present(&field, label(column), findings);
        break;
      case Holds::Price:
        check_price(&field, label(column), forint_prices(), findings);
        break;
      case Holds::Image:
        if (check_present(&field, label(column), findings))
          check_address(&field, label(column), true, findings);
        break;
      default:
        break;
    }
  }
}

class VateraChecker : public ItemChecker {
 public:
  CheckedItem check(const FeedItem& item, std::vector<Finding>& findings) override {
    const std::string_view record =
        item.fields.empty() ? std::string_view() : std::string_view(item.fields.front().value);
    Fields fields = split(record, kColumnCount - 1);
    if (fields.size() < kColumnCount) {
      findings.push_back({ProblemKind::WrongFields,
                          "record",
                          std::to_string(fields.size()) + " fields, the format has 31",
                          {}});
      return {fields.size() > kKeyColumn ? fields[kKeyColumn] : "", ""};
    }
    const int mismatch = first_mismatch(fields);
    if (mismatch >= 0) {
      std::optional<Fields> repaired = repair(record, findings);
      if (!repaired) {
        const auto column = static_cast<std::size_t>(mismatch);
        findings.push_back({ProblemKind::WrongFields, label(column),
                            layout_mismatch(column, fields[column]), fields[column]});
        return {fields[kKeyColumn], ""};
      }
      fields = std::move(*repaired);
    }
    check_values(fields, findings);
    return {fields[kKeyColumn], fields[kPriceColumn]};
  }

 private:
  static std::optional<Fields> repair(std::string_view record, std::vector<Finding>& findings) {
    for (std::size_t extra = 1; extra <= kMaxShift; ++extra) {
      for (std::size_t column : kTextColumns) {
        std::optional<Fields> repaired = realigned(record, column, extra);
        if (!repaired)
          continue;
        const std::string what =
            extra == 1 ? "holds a \";\" that moves every later field one column on"
                       : "holds " + std::to_string(extra) + " \";\" that move every later field " +
                             std::to_string(extra) + " columns on";
        findings.push_back({ProblemKind::WrongFields, label(column), what, (*repaired)[column]});
        return repaired;
      }
    }
    return std::nullopt;
  }
};

}  // namespace

std::unique_ptr<ItemChecker> make_vatera_checker() {
  return std::make_unique<VateraChecker>();
}

}  // namespace talmo::feedcheck
