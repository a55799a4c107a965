// The Árukereső feed: eleven quoted fields under a fixed header. Árukereső hides an item without
// a name, address, price, image or description, and keeps one item per product address.
#include <array>

#include "feedcheck/item_checker.h"
#include "feedcheck/value_checks.h"

namespace talmo::feedcheck {
namespace {

constexpr std::array<const char*, 11> kColumns = {
    "manufacturer", "name",        "category",    "product_url",   "price",          "image_url",
    "image_url_2",  "image_url_3", "description", "delivery_time", "product_number",
};

enum Column : std::size_t {
  kName = 1,
  kProductUrl = 3,
  kPrice = 4,
  kImageUrl = 5,
  kDescription = 8
};

class ArukeresoChecker : public ItemChecker {
 public:
  CheckedItem check(const FeedItem& item, std::vector<Finding>& findings) override {
    const std::vector<Field>& fields = item.fields;
    const std::string key = fields.size() > kProductUrl ? fields[kProductUrl].value : "";
    if (fields.size() != kColumns.size()) {
      findings.push_back({ProblemKind::WrongFields,
                          "record",
                          std::to_string(fields.size()) + " fields, the format has 11",
                          {}});
      return {key, ""};
    }
    for (std::size_t i = 0; i < fields.size(); ++i) {
      if (!fields[i].quoted) {
        findings.push_back({ProblemKind::WrongFields, kColumns[i], "not enclosed in double quotes",
                            fields[i].value});
        break;
      }
    }
    check_present(&fields[kName], kColumns[kName], findings);
    if (check_present(&fields[kProductUrl], kColumns[kProductUrl], findings))
      check_address(&fields[kProductUrl], kColumns[kProductUrl], true, findings);
    check_price(&fields[kPrice], kColumns[kPrice], forint_prices(), findings);
    if (check_present(&fields[kImageUrl], kColumns[kImageUrl], findings))
      check_address(&fields[kImageUrl], kColumns[kImageUrl], true, findings);
    check_present(&fields[kDescription], kColumns[kDescription], findings);
    return {key, fields[kPrice].value};
  }

  std::optional<FileProblem> check_header(const FeedItem& header) override {
    bool same = header.fields.size() == kColumns.size();
    for (std::size_t i = 0; same && i < kColumns.size(); ++i)
      same = header.fields[i].value == kColumns[i];
    if (same)
      return std::nullopt;
    return FileProblem{ProblemKind::WrongHeader,
                       "line 1 is not the header \"manufacturer\",\"name\",...,\"product_number\""};
  }
};

}  // namespace

std::unique_ptr<ItemChecker> make_arukereso_checker() {
  return std::make_unique<ArukeresoChecker>();
}

}  // namespace talmo::feedcheck
