#include "feeds/feed_loop.h"

#include "core/console.h"
#include "core/progress.h"
#include "core/system.h"
#include "product/published.h"

namespace talmo {

void drop_unpublished(Query& query, StringList& list, const std::string& prefix) {
  std::size_t i = 0;
  while (i < list.size()) {
    if (!PRODUCTPUBLISHED(query, list[i])) {
      write_line(prefix + list[i] + " - Not published");
      list.erase(list.begin() + static_cast<std::ptrdiff_t>(i));
    } else {
      write_line(prefix + list[i] + " - Published");
      ++i;
    }
  }
}

void walk_items(Query& query, const StringList& list, const std::string& site,
                const std::string& label, std::int64_t start_ms, bool skip_grando_only,
                const ItemBuilder& build_item) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    write_line(progress_line(label, site, static_cast<std::int64_t>(i),
                             static_cast<std::int64_t>(list.size()), start_ms,
                             clock_milliseconds()));
    if (skip_grando_only && ISONLYFORGRANDO(query, list[i]))
      continue;
    build_item(list[i]);
  }
}

std::string csv_path(const std::string& PATH, const std::string& site, const std::string& file) {
  return PATH + "export/" + lower_ascii(site) + "/" + file;
}

}  // namespace talmo
