#include "feedcheck/feed_kinds.h"

namespace talmo::feedcheck {

const std::vector<FeedKind>& all_feed_kinds() {
  static const std::vector<FeedKind> kinds = {
      {"talmo", "hu/talmo.xml", FeedFormat::Xml, "termeklista", "termek", "termeklink", "ar"},
      {"arukereso", "hu/arukereso.csv", FeedFormat::QuotedCsv, "", "", "product_url", "price"},
      {"grando", "hu/grando.xml", FeedFormat::Xml, "products", "product", "product_id",
       "discount_price"},
      {"vatera", "hu/vatera.csv", FeedFormat::VateraCsv, "", "", "column 25 (own product id)",
       "column 5 (starting price)"},
      {"heureka", "sk/heureka.xml", FeedFormat::Xml, "SHOP", "SHOPITEM", "ITEM_ID", "PRICE_VAT"},
  };
  return kinds;
}

const FeedKind* find_feed_kind(std::string_view name) {
  for (const FeedKind& kind : all_feed_kinds()) {
    if (name == kind.name)
      return &kind;
  }
  return nullptr;
}

}  // namespace talmo::feedcheck
