// The Grando feed: each product is named by its product_id; both its prices must be prices.
#include "feedcheck/item_checker.h"
#include "feedcheck/value_checks.h"

namespace talmo::feedcheck {
namespace {

class GrandoChecker : public ItemChecker {
 public:
  CheckedItem check(const FeedItem& item, std::vector<Finding>& findings) override {
    check_present(item.find("product_id"), "product_id", findings);
    check_price(item.find("price"), "price", forint_prices(), findings);
    check_price(item.find("discount_price"), "discount_price", forint_prices(), findings);
    check_address(item.find("page_link"), "page_link", true, findings);
    check_address(item.find("image_url"), "image_url", true, findings);
    return {item.value("product_id"), item.value("discount_price")};
  }
};

}  // namespace

std::unique_ptr<ItemChecker> make_grando_checker() {
  return std::make_unique<GrandoChecker>();
}

}  // namespace talmo::feedcheck
