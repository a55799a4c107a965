#pragma once

// Hand-written HTML of the description's rows, icons and details tables, typed out from the
// shop's pages for comparing whole sections.

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

// The inline styles of the details tables: label paragraphs, value paragraphs, cells by their
// left and bottom border widths, and the table up to its id attribute.
inline const std::string kLabelStyle =
    "style=\"font-size: 12px; line-height: 15px; margin-left: 5px; font-family: 'Federo', Arial, "
    "sans-serif;\"";
inline const std::string kValueStyle =
    "style=\"font-size: 14px; text-align: justify; margin-left: 15px; font-family: 'Federo', "
    "Arial, sans-serif; line-height: 16px;\"";
inline std::string cell_style(const std::string& left, const std::string& bottom) {
  return "align=\"left\" style=\"border-style: solid; border-color: black; border-top-width: 0px; "
         "border-left-width: " +
         left + "; border-right-width: 0px; border-bottom-width: " + bottom + ";\"";
}
inline const std::string kTableStyle =
    "align=\"left\" cellpadding=\"5\" cellspacing=\"0\" style=\"width: 100%; border-style: solid; "
    "border-color: black; border-top-width: 2px; border-left-width: 2px; border-right-width: 1px; "
    "border-bottom-width: 0px; display: none;\" ";

}  // namespace talmo::testing
