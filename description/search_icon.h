#pragma once

#include <string>

namespace talmo {

// The shop's product search; the keyword (words joined by "+") is appended.
inline constexpr const char* SEARCH_QUERY =
    "/component/virtuemart/search?limitstart=0&option=com_virtuemart&view=category&keyword=";

// An icon `icon` (a path under "images/leiras/") that opens the shop's search for `keyword` in
// the same window. Sections put "<br />" before it themselves where they need a line break.
inline std::string search_icon_link(const std::string& keyword, const std::string& icon) {
  return std::string("<a target=\"_self\" href=\"") + SEARCH_QUERY + keyword + "\">" +
         "<img alt=\"Kattints ha keresni akarsz erre a típusra\" src=\"" + icon + "\" />" + "</a>";
}

// The same icon on a line of its own, as it follows a component's name.
inline std::string search_icon_line(const std::string& keyword, const std::string& icon) {
  return "<br />" + search_icon_link(keyword, icon);
}

}  // namespace talmo
