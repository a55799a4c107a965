#include "feedcheck/publish_gate.h"

#include "core/directories.h"
#include "core/file_copy.h"

namespace talmo::feedcheck {

std::optional<std::string> hold_back_reason(const std::optional<FileProblem>& file_problem,
                                            std::size_t items,
                                            std::optional<std::size_t> published_items,
                                            bool accept_shrink) {
  if (file_problem)
    return std::string("the feed has a whole-file problem");
  if (published_items && items * 2 < *published_items && !accept_shrink) {
    return std::to_string(items) + " items, fewer than half of the " +
           std::to_string(*published_items) +
           " in the published copy (--accept-shrink publishes it)";
  }
  return std::nullopt;
}

std::optional<std::string> publish_feed(FileReader& checked, const std::string& publish_dir,
                                        const FeedKind& kind) {
  const std::string file = kind.file;
  const std::string site_dir = publish_dir + file.substr(0, file.find('/'));
  if (!make_directory(site_dir))
    return "the folder " + site_dir + " cannot be made";
  try {
    replace_with_copy(checked, publish_dir + file);
  } catch (const TalmoError& error) {
    return std::string(error.what());
  }
  return std::nullopt;
}

}  // namespace talmo::feedcheck
