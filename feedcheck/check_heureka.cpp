// The Heureka.sk feed: the rules Heureka applies to an item's id, name, addresses, price and
// category path. Empty parameter values are only worth a look: the parameter block writes them.
#include <string_view>
#include <unordered_map>

#include "feedcheck/item_checker.h"
#include "feedcheck/value_checks.h"

namespace talmo::feedcheck {
namespace {

constexpr std::size_t kMaxItemId = 36;
constexpr std::size_t kMaxName = 200;
constexpr std::size_t kMaxUrl = 300;
constexpr std::size_t kMaxImageUrl = 255;
constexpr std::size_t kMaxCategory = 255;
constexpr std::string_view kLevelSeparator = " | ";

bool is_id_character(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' ||
         c == '-';
}

void check_item_id(const Field* id, std::vector<Finding>& findings) {
  if (!check_present(id, "ITEM_ID", findings))
    return;
  const std::string& value = id->value;
  std::string what;
  if (value.size() > kMaxItemId)
    what = std::to_string(character_count(value)) + " characters, at most 36";
  for (char c : value) {
    if (!is_id_character(c)) {
      what = "holds characters other than A-Z a-z 0-9 _ -";
      break;
    }
  }
  if (!what.empty())
    findings.push_back({ProblemKind::BadItemId, "ITEM_ID", what, value});
}

// Levels separated by " | ", none of them empty and none holding a "|" of its own.
void check_category_levels(const Field* category, std::vector<Finding>& findings) {
  const std::string& text = category->value;
  std::size_t start = 0;
  for (;;) {
    const std::size_t end = text.find(kLevelSeparator, start);
    const std::string_view level =
        std::string_view(text).substr(start, end == std::string::npos ? end : end - start);
    std::string what;
    if (level.empty() || level.find_first_not_of(' ') == std::string_view::npos)
      what = "an empty level";
    else if (level.find('|') != std::string_view::npos)
      what = "levels not separated by \" | \"";
    if (!what.empty()) {
      findings.push_back({ProblemKind::BadCategory, "CATEGORYTEXT", what, text});
      return;
    }
    if (end == std::string::npos)
      return;
    start = end + kLevelSeparator.size();
  }
}

class HeurekaChecker : public ItemChecker {
 public:
  CheckedItem check(const FeedItem& item, std::vector<Finding>& findings) override {
    check_item_id(item.find("ITEM_ID"), findings);
    const Field* name = item.find("PRODUCTNAME");
    if (check_present(name, "PRODUCTNAME", findings))
      check_length(name, "PRODUCTNAME", kMaxName, findings);
    check_url(item, findings);
    const Field* image = item.find("IMGURL");
    if (check_present(image, "IMGURL", findings)) {
      check_address(image, "IMGURL", true, findings);
      check_length(image, "IMGURL", kMaxImageUrl, findings);
    }
    // Further pictures are not required, but one that is given must be a usable address.
    for (const Field& field : item.fields) {
      if (field.name == "IMGURL_ALTERNATIVE" && !field.value.empty())
        check_address(&field, field.name, true, findings);
    }
    check_price(item.find("PRICE_VAT"), "PRICE_VAT", euro_prices(), findings);
    const Field* category = item.find("CATEGORYTEXT");
    if (check_present(category, "CATEGORYTEXT", findings)) {
      check_length(category, "CATEGORYTEXT", kMaxCategory, findings);
      check_category_levels(category, findings);
    }
    for (const Field& param : item.params) {
      if (param.value.empty())
        findings.push_back({ProblemKind::EmptyParameter, "PARAM " + param.name, "empty value", {}});
    }
    return {item.value("ITEM_ID"), item.value("PRICE_VAT")};
  }

 private:
  void check_url(const FeedItem& item, std::vector<Finding>& findings) {
    const Field* url = item.find("URL");
    if (!check_present(url, "URL", findings))
      return;
    check_address(url, "URL", false, findings);
    check_length(url, "URL", kMaxUrl, findings);
    const std::string key = item.value("ITEM_ID");
    const auto [first, added] = urls_.try_emplace(url->value, key, item.line);
    if (!added) {
      findings.push_back({ProblemKind::DuplicateKey, "URL",
                          "also the URL of item \"" + first->second.key + "\" (line " +
                              std::to_string(first->second.line) + ")",
                          url->value});
    }
  }

  struct FirstUse {
    FirstUse(std::string k, std::size_t l) : key(std::move(k)), line(l) {}
    std::string key;
    std::size_t line;
  };
  std::unordered_map<std::string, FirstUse> urls_;
};

}  // namespace

std::unique_ptr<ItemChecker> make_heureka_checker() {
  return std::make_unique<HeurekaChecker>();
}

}  // namespace talmo::feedcheck
