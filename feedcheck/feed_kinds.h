#pragma once

#include <string_view>
#include <vector>

namespace talmo::feedcheck {

// How a feed file is laid out, and so which reader splits it into items.
enum class FeedFormat { Xml, QuotedCsv, VateraCsv };

// One of the five feeds the export writes, as the checker finds it under an export directory.
struct FeedKind {
  const char* name;  // the name --feeds takes: "talmo", "arukereso", ...
  const char* file;  // the file under the export directory: "hu/talmo.xml"
  FeedFormat format;
  const char* root;   // XML: the root element, "termeklista"
  const char* item;   // XML: the element of one item, "termek"
  const char* key;    // the field that names an item, as the report shows it
  const char* price;  // the price compared with the previous run
};

// The five feeds in the order the export writes them.
const std::vector<FeedKind>& all_feed_kinds();

// The feed called `name`, or nullptr.
const FeedKind* find_feed_kind(std::string_view name);

}  // namespace talmo::feedcheck
