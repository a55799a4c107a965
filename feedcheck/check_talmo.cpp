// The TALMO feed: each termek is named by its product link, and its gross price must be one.
#include "feedcheck/item_checker.h"
#include "feedcheck/value_checks.h"

namespace talmo::feedcheck {
namespace {

class TalmoChecker : public ItemChecker {
 public:
  CheckedItem check(const FeedItem& item, std::vector<Finding>& findings) override {
    const Field* link = item.find("termeklink");
    if (check_present(link, "termeklink", findings))
      check_address(link, "termeklink", true, findings);
    check_address(item.find("fotolink"), "fotolink", true, findings);
    check_price(item.find("ar"), "ar", forint_prices(), findings);
    return {item.value("termeklink"), item.value("ar")};
  }
};

}  // namespace

std::unique_ptr<ItemChecker> make_talmo_checker() {
  return std::make_unique<TalmoChecker>();
}

}  // namespace talmo::feedcheck
