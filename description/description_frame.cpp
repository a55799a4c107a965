#include "description/description_frame.h"

#include <utility>

#include "core/replacements.h"
#include "core/strings.h"
#include "core/text_utils.h"
#include "description/article_links.h"
#include "description/html_helpers.h"

namespace talmo {

std::string restyle_description(const std::string& raw) {
  // Order matters: header and body cells share attribute texts and differ only in their tag.
  static const Replacements kRestyling(
      {
          {"<p " + HTML_ADDPSTYLING1() + ">", "<p id=\"item_detail_text\">"},
          {"<table " + table_style_before_id(),
           "<table align=\"left\" cellpadding=\"5\" cellspacing=\"0\" "
           "class=\"table_main_custom\" "},
          {"<th " + HTML_ADDTHSTYLING1() + ">", "<th align=\"left\" id=\"table_th_custom1\">"},
          {"<th " + HTML_ADDTHSTYLING2() + ">", "<th align=\"left\" id=\"table_th_custom2\">"},
          {"<p " + HTML_ADDPSTYLING2() + ">", "<p id=\"item_item_text\">"},
          {"<td " + HTML_ADDTDSTYLING_EMPTY() + ">", "<td align=\"left\" id=\"table_td_custom1\">"},
          {"<td " + HTML_ADDTDSTYLING_ALL() + ">", "<td align=\"left\" id=\"table_td_custom2\">"},
          {"<td " + HTML_ADDTDSTYLING_BOTTOM1() + ">",
           "<td align=\"left\" id=\"table_td_custom3\">"},
          {"<td " + HTML_ADDTDSTYLING_BOTTOM2() + ">",
           "<td align=\"left\" id=\"table_td_custom4\">"},
          {TOGGLE_SCRIPT, ""},
      },
      true);
  return kRestyling.apply(raw);
}

std::string marketplace_description(const std::string& restyled, const std::string& SITE) {
  static const Replacements kLinks(
      {
          {PROCESSZOR_LINK, PROCESSZOR_LINK_SE},
          {MEREVLEMEZ_LINK, MEREVLEMEZ_LINK_SE},
          {GRAFIKUS_KARTYA_LINK, GRAFIKUS_KARTYA_LINK_SE},
          {WINDOWS8_LINK, WINDOWS8_LINK_SE},
          {KIJELZO_LINK, ""},
          {KIEGESZITOK_LINK, ""},
      },
      false);
  const std::string B = GETSITEURL(SITE) + "/";
  const std::string D = replace_all(kLinks.apply(restyled), "images/leiras/", B + "images/leiras/");
  return STYLESHEET + TOGGLE_SCRIPT + collapse_blanks(D);
}

}  // namespace talmo
