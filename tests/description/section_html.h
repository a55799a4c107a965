#pragma once

// Hand-written HTML of one description row and of a search icon, for comparing whole sections.

#include <string>

namespace talmo::testing {

inline std::string hu_row(const std::string& title, const std::string& icons,
                          const std::string& value) {
  return "<div id=\"sor\"><div id=\"megnevezes\"><p id=\"megnevezes_szoveg\"><strong>" + title +
         icons + "</strong></p></div><div id=\"leiras\"><p id=\"leiras_szoveg\" " +
         "itemprop=\"ingredients\">" + value + "</p></div></div>";
}

inline std::string sk_row(const std::string& title, const std::string& icons,
                          const std::string& value) {
  return "<div id=\"linia\"><div id=\"oznacenie\"><p id=\"oznacenie_text\"><strong>" + title +
         icons + "</strong></p></div><div id=\"popis\"><p id=\"popis_text\" " +
         "itemprop=\"ingredients\">" + value + "</p></div></div>";
}

// The search icon for `keyword` showing images/leiras/`file`.
inline std::string search_icon(const std::string& keyword, const std::string& file) {
  return "<a target=\"_self\" href=\"/component/virtuemart/search?limitstart=0&option="
         "com_virtuemart&view=category&keyword=" +
         keyword + "\"><img alt=\"Kattints ha keresni akarsz erre a típusra\" " +
         "src=\"images/leiras/" + file + "\" /></a>";
}

}  // namespace talmo::testing
