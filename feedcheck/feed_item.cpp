#include "feedcheck/feed_item.h"

namespace talmo::feedcheck {

void Field::append(std::string_view text) {
  const std::size_t room = kValueLimit - value.size();
  if (text.size() > room) {
    value.append(text.substr(0, room));
    cut = true;
    return;
  }
  value.append(text);
}

const Field* FeedItem::find(std::string_view name) const {
  for (const Field& field : fields) {
    if (field.name == name)
      return &field;
  }
  return nullptr;
}

std::string FeedItem::value(std::string_view name) const {
  const Field* field = find(name);
  return field ? field->value : std::string();
}

}  // namespace talmo::feedcheck
