#pragma once

#include <string>

namespace talmo {

// The show/hide script behind each section's "mutat/elrejt" link. Its lines end in a lone CR,
// the last one ("</script>") in nothing.
inline const std::string TOGGLE_SCRIPT =
    "<script type=\"text/javascript\">\r"
    "<!--\r"
    "  function show_item(id) {\r"
    "    var e = document.getElementById(id);\r"
    "    if (e.style.display == 'block')\r"
    "      e.style.display = 'none';\r"
    "    else\r"
    "      e.style.display = 'block';\r"
    "  }\r"
    "//-->\r"
    "</script>";

// One-line style sheet for the ids and classes that restyle_description puts in place of the
// inline styles. custom3 and custom4 have no bottom border, unlike the inline styles they
// replace; the marketplaces have always shown it so.
inline const std::string STYLESHEET =
    "<style type=\"text/css\">"
    "#megnevezes { display: table-cell; width: 135px; clear: none; background-color: #333; }"
    "#megnevezes_szoveg { font-size: 12px; line-height: 15px; color: #ccc; width: 135px; "
    "margin-left: 5px; font-family: 'Federo', Arial, sans-serif; }"
    "#leiras { display: table-cell; clear: none; width: auto; }"
    "#leiras_szoveg { font-size: 14px; color: #686868; text-align: justify; margin-left: 15px; "
    "font-family: 'Federo', Arial, sans-serif; line-height: 16px; }"
    "#sor { display: block; width: 100%; border-width: 1px; border-top-style: solid; }"
    "#item_detail_text { font-size: 12px; line-height: 15px; margin-left: 15px; font-family: "
    "'Federo', Arial, sans-serif; }"
    ".table_main_custom { width: 400px; margin-left: 15px; margin-bottom: 5px; display: none; "
    "border-top-width: 2px; border-left-width: 2px; border-right-width: 1px; "
    "border-bottom-width: 1px; border-style: solid; border-color: black; }"
    "#table_th_custom1 { width: 150px; background-color: #151515; font-color: #fff; "
    "border-style: solid; border-color: black; border-top-width: 0px; border-left-width: 0px; "
    "border-right-width: 0px; border-bottom-width: 1px; }"
    "#table_th_custom2 { width: 250px; background-color: #151515; font-color: #fff; "
    "border-style: solid; border-color: black; border-top-width: 0px; border-left-width: 1px; "
    "border-right-width: 0px; border-bottom-width: 1px; }"
    "#item_item_text { font-size: 14px; text-align: justify; margin-left: 15px; font-family: "
    "'Federo', Arial, sans-serif; line-height: 16px; }"
    "#table_td_custom1 { border-style: solid; border-color: black; border-top-width: 0px; "
    "border-left-width: 0px; border-right-width: 0px; border-bottom-width: 0px; }"
    "#table_td_custom2 { border-style: solid; border-color: black; border-top-width: 0px; "
    "border-left-width: 1px; border-right-width: 0px; border-bottom-width: 0px; }"
    "#table_td_custom3 { border-style: solid; border-color: black; border-top-width: 0px; "
    "border-left-width: 0px; border-right-width: 0px; border-bottom-width: 0px; }"
    "#table_td_custom4 { border-style: solid; border-color: black; border-top-width: 0px; "
    "border-left-width: 1px; border-right-width: 0px; border-bottom-width: 0px; }"
    "</style>";

// The raw description (the sections joined) with the sections' inline styles swapped for the ids
// and classes of STYLESHEET and every TOGGLE_SCRIPT removed; letter case is ignored when matching.
// The table's own id attribute stays. GENERATE_PRODUCT_DESC is this of GENERATELEIRAS.
std::string restyle_description(const std::string& raw);

// The marketplace form of a restyled description for SITE: the HU article links swapped for
// their new-window forms (display and accessory links dropped), "images/leiras/" made absolute on
// SITE's base address, runs of blanks collapsed to one, and STYLESHEET + TOGGLE_SCRIPT in front.
// Links and image paths match in exact letter case. GENERATE_ARUKERESO_DESCRIPTION is this of
// GENERATE_PRODUCT_DESC.
std::string marketplace_description(const std::string& restyled, const std::string& SITE);

}  // namespace talmo
