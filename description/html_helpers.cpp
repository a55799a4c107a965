#include "description/html_helpers.h"

#include <iterator>

#include "product/translation.h"

namespace talmo {
namespace {

// Every header and body cell has the same attributes; only two border widths differ.
std::string cell_styling(const char* left_width, const char* bottom_width) {
  return std::string(
             "align=\"left\" style=\"border-style: solid; border-color: black; "
             "border-top-width: 0px; border-left-width: ") +
         left_width + "; border-right-width: 0px; border-bottom-width: " + bottom_width + ";\"";
}

const char* const kTableIds[] = {"cpu", "display", "memory", "hdd", "gcard"};

}  // namespace

std::string HTML_ADDPSTYLING1() {
  return "style=\"font-size: 12px; line-height: 15px; margin-left: 5px; font-family: 'Federo', "
         "Arial, sans-serif;\"";
}

std::string HTML_ADDPSTYLING2() {
  return "style=\"font-size: 14px; text-align: justify; margin-left: 15px; font-family: "
         "'Federo', Arial, sans-serif; line-height: 16px;\"";
}

std::string HTML_ADDTHSTYLING1() {
  return cell_styling("0px", "1px");
}
std::string HTML_ADDTHSTYLING2() {
  return cell_styling("1px", "1px");
}
std::string HTML_ADDTDSTYLING_ALL() {
  return cell_styling("1px", "0px");
}
std::string HTML_ADDTDSTYLING_EMPTY() {
  return cell_styling("0px", "0px");
}
std::string HTML_ADDTDSTYLING_BOTTOM1() {
  return cell_styling("0px", "1px");
}
std::string HTML_ADDTDSTYLING_BOTTOM2() {
  return cell_styling("1px", "1px");
}

std::string table_style_before_id() {
  return "align=\"left\" cellpadding=\"5\" cellspacing=\"0\" style=\"width: 100%; border-style: "
         "solid; border-color: black; border-top-width: 2px; border-left-width: 2px; "
         "border-right-width: 1px; border-bottom-width: 0px; display: none;\" ";
}

std::string HTML_ADDTABLESTYLING(std::int32_t TIPUS) {
  const bool known = TIPUS >= 0 && TIPUS < static_cast<std::int32_t>(std::size(kTableIds));
  return table_style_before_id() + "id=\"" + (known ? kTableIds[TIPUS] : "") + "\"";
}

std::string HTML_ADDTRUEORFALSEIMAGE(bool TF, Query& VAR_QUERY, const std::string& LANG) {
  const std::string alt = GETTRANSLATION(VAR_QUERY,
                                         TF ? "A készülék rendelkezik ezzel az elemmel"
                                            : "A készülék nem rendelkezik ezzel az elemmel",
                                         LANG);
  return "<img style=\"vertical-align: middle;\" alt=\"" + alt + "\" src=\"images/leiras/" +
         (TF ? "true" : "false") + ".png\" />";
}

std::string HTML_STRONG(const std::string& STR) {
  return "<strong>" + STR + "</strong>";
}

}  // namespace talmo
