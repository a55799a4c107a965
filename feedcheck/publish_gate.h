#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "core/file_reader.h"
#include "feedcheck/feed_kinds.h"
#include "feedcheck/problems.h"

namespace talmo::feedcheck {

// Why a checked feed must not replace its published copy, or nullopt when it may: a feed with a
// whole-file problem never goes out; one with fewer than half the items of the published copy
// (`published_items`, when there is one) goes out only when the shop accepts the shrink.
std::optional<std::string> hold_back_reason(const std::optional<FileProblem>& file_problem,
                                            std::size_t items,
                                            std::optional<std::size_t> published_items,
                                            bool accept_shrink);

// Replaces the published copy of `kind` under `publish_dir` with the checked feed `checked`,
// making the site's folder (hu/, sk/) when it is missing. Returns why it failed, or nullopt.
std::optional<std::string> publish_feed(FileReader& checked, const std::string& publish_dir,
                                        const FeedKind& kind);

}  // namespace talmo::feedcheck
