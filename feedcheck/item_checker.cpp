#include "feedcheck/item_checker.h"

#include <string_view>

namespace talmo::feedcheck {

std::optional<FileProblem> ItemChecker::check_header(const FeedItem&) {
  return std::nullopt;
}

std::unique_ptr<ItemChecker> make_item_checker(const FeedKind& kind) {
  const std::string_view name = kind.name;
  if (name == "talmo")
    return make_talmo_checker();
  if (name == "arukereso")
    return make_arukereso_checker();
  if (name == "grando")
    return make_grando_checker();
  if (name == "vatera")
    return make_vatera_checker();
  return make_heureka_checker();
}

}  // namespace talmo::feedcheck
