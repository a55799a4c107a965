#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace talmo::feedcheck {

// An offending value is shown cut to this many characters.
inline constexpr std::size_t kShownCharacters = 60;

// `text` made safe for one report line: line breaks, tabs and other control bytes written as
// "\n", "\r", "\t" and "\xNN", as are bytes that are not UTF-8. Nothing is cut.
std::string visible(std::string_view text);

// visible(text) cut after kShownCharacters characters of the original, with "..." added
// when something was cut.
std::string shown(std::string_view text);

}  // namespace talmo::feedcheck
