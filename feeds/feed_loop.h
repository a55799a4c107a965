#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/database.h"
#include "core/strings.h"

namespace talmo {

// The steps every feed's list operation shares.

// Deletes unpublished ids from `list` in place, printing `prefix` + id + " - Not published" or
// " - Published" for each. TALMO's prefix is "Product with ID: ", the others' "Product with id: ".
void drop_unpublished(Query& query, StringList& list, const std::string& prefix);

// Builds one item of a feed from its product id.
using ItemBuilder = std::function<void(const std::string& IDX)>;

// The per-item loop: a progress line for every item (percent, `label`, the site, the counter,
// elapsed and remaining time since `start_ms`), then the item, unless `skip_grando_only` is set
// and the product is a clearance item that only Grando carries.
void walk_items(Query& query, const StringList& list, const std::string& site,
                const std::string& label, std::int64_t start_ms, bool skip_grando_only,
                const ItemBuilder& build_item);

// PATH + "export/" + the site in lower case + "/" + file: where a CSV feed is saved.
std::string csv_path(const std::string& PATH, const std::string& site, const std::string& file);

}  // namespace talmo
