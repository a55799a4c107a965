#include "description/description_frame.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/strings.h"
#include "description/article_links.h"
#include "tests/description/section_html.h"

namespace talmo::testing {
namespace {

TEST(ArticleLinks, AddLinkOnlyOnTheHungarianSite) {
  for (const std::string& link :
       {PROCESSZOR_LINK, MEREVLEMEZ_LINK, KIJELZO_LINK, GRAFIKUS_KARTYA_LINK, KIEGESZITOK_LINK,
        WINDOWS8_LINK, LINUX_LINK, ANDROID_LINK}) {
    EXPECT_EQ(ADDLINK(link, "hu"), link);
    EXPECT_EQ(ADDLINK(link, "HU"), link);
    EXPECT_EQ(ADDLINK(link, "sk"), "") << link;
  }
  // Only the eight texts exactly: not the marketplace forms, not a near copy.
  for (const std::string& other :
       {PROCESSZOR_LINK_SE, PROCESSZOR_LINK + " ", upper_ascii(LINUX_LINK), std::string()}) {
    EXPECT_EQ(ADDLINK(other, "hu"), "") << other;
  }
}

// A processor section as the sections write it: heading paragraph, script, a table with its
// header row and two body rows (the last with the bottom borders).
std::string raw_processor_section() {
  return "<a name=\"cpu\"></a><div id=\"sor\"><div id=\"megnevezes\"><p "
         "id=\"megnevezes_szoveg\"><strong>Processzor</strong></p></div><div id=\"leiras\"><p "
         "id=\"leiras_szoveg\" itemprop=\"ingredients\">Intel Core i5<br />" +
         TOGGLE_SCRIPT + "<p " + kLabelStyle +
         ">CPU részletei: <a href=\"#cpu\" onclick=\"show_item('cpu');\">mutat/elrejt</a></p>"
         "<table " +
         kTableStyle + "id=\"cpu\"><tr><th " + cell_style("0px", "1px") + "><p " + kLabelStyle +
         "><strong>CPU</strong></p></th><th " + cell_style("1px", "1px") + "><p " + kValueStyle +
         "><strong>Érték</strong></p></th></tr><tr><td " + cell_style("0px", "0px") + "><p " +
         kLabelStyle + "><strong>Gyártó</strong></p></td><td " + cell_style("1px", "0px") + "><p " +
         kValueStyle + ">Intel</p></td></tr><tr><td " + cell_style("0px", "1px") + "><p " +
         kLabelStyle + "><strong>Típus</strong></p></td><td " + cell_style("1px", "1px") + "><p " +
         kValueStyle + ">Core i5</p></td></tr></table></p></div></div>";
}

TEST(DescriptionFrame, RestyleSection) {
  EXPECT_EQ(restyle_description(raw_processor_section()),
            "<a name=\"cpu\"></a><div id=\"sor\"><div id=\"megnevezes\"><p "
            "id=\"megnevezes_szoveg\"><strong>Processzor</strong></p></div><div "
            "id=\"leiras\"><p id=\"leiras_szoveg\" itemprop=\"ingredients\">Intel Core i5<br />"
            "<p id=\"item_detail_text\">CPU részletei: <a href=\"#cpu\" "
            "onclick=\"show_item('cpu');\">mutat/elrejt</a></p>"
            "<table align=\"left\" cellpadding=\"5\" cellspacing=\"0\" class=\"table_main_custom\" "
            "id=\"cpu\"><tr><th align=\"left\" id=\"table_th_custom1\"><p "
            "id=\"item_detail_text\"><strong>CPU</strong></p></th><th align=\"left\" "
            "id=\"table_th_custom2\"><p id=\"item_item_text\"><strong>Érték</strong></p></th></tr>"
            "<tr><td align=\"left\" id=\"table_td_custom1\"><p "
            "id=\"item_detail_text\"><strong>Gyártó</strong></p></td><td align=\"left\" "
            "id=\"table_td_custom2\"><p id=\"item_item_text\">Intel</p></td></tr>"
            "<tr><td align=\"left\" id=\"table_td_custom3\"><p "
            "id=\"item_detail_text\"><strong>Típus</strong></p></td><td align=\"left\" "
            "id=\"table_td_custom4\"><p id=\"item_item_text\">Core i5</p></td></tr></table></p>"
            "</div></div>");
}

TEST(DescriptionFrame, RestyleIgnoresLetterCase) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {upper_ascii("<p " + kLabelStyle + ">") + "x", "<p id=\"item_detail_text\">x"},
      {upper_ascii("<td " + cell_style("1px", "1px") + ">") + "x",
       "<td align=\"left\" id=\"table_td_custom4\">x"},
      {upper_ascii("<table " + kTableStyle) + "ID=\"HDD\">",
       "<table align=\"left\" cellpadding=\"5\" cellspacing=\"0\" class=\"table_main_custom\" "
       "ID=\"HDD\">"},
      {"a" + upper_ascii(TOGGLE_SCRIPT) + "b", "ab"},
      {"<p style=\"color: red;\">x</p>", "<p style=\"color: red;\">x</p>"},  // not the shop's
  };
  for (const auto& [raw, restyled] : cases)
    EXPECT_EQ(restyle_description(raw), restyled) << raw;
}

TEST(DescriptionFrame, MarketplaceOnTheHungarianSite) {
  const std::string restyled =
      "<p id=\"leiras_szoveg\">Intel Core i5" + ADDLINK(PROCESSZOR_LINK, "hu") +
      "</p><p id=\"leiras_szoveg\">15.6\"   Full HD" + ADDLINK(KIJELZO_LINK, "hu") +
      "<br /><img alt=\"x\" src=\"images/leiras/fullhd.png\" /><img src=\"IMAGES/LEIRAS/3d.png\" "
      "/></p><p>Linux" +
      ADDLINK(LINUX_LINK, "hu") + "</p>";
  EXPECT_EQ(marketplace_description(restyled, "hu"),
            STYLESHEET + TOGGLE_SCRIPT +
                "<p id=\"leiras_szoveg\">Intel Core i5<br /><br />A laptop processzorok "
                "teljesítményéről szóló összefoglalót <a "
                "href=\"https://www.kelvor.hu/laptop-processzor?tmpl=component\" "
                "target=\"_blank\">itt</a> tekintheti meg</p><p id=\"leiras_szoveg\">15.6\" Full "
                "HD<br /><img alt=\"x\" src=\"https://www.kelvor.hu/images/leiras/fullhd.png\" "
                "/><img src=\"IMAGES/LEIRAS/3d.png\" /></p><p>Linux<bt /><br />Bõvebb információt "
                "a Linux operációs rendszerről itt olvashat: <a "
                "href=\"https://www.kelvor.hu/linux-operacios-rendszer\" target=\"_self\">Linux "
                "operációs rendszer</a></p>");
}

TEST(DescriptionFrame, MarketplaceOnTheSisterSites) {
  const std::string restyled =
      "<p id=\"popis_text\">Intel Core i5<br /><img src=\"images/leiras/intel_i5.png\" />  </p>";
  EXPECT_EQ(marketplace_description(restyled, "sk"),
            STYLESHEET + TOGGLE_SCRIPT +
                "<p id=\"popis_text\">Intel Core i5<br /><img "
                "src=\"https://www.kelvor.sk/images/leiras/intel_i5.png\" /> </p>");
  EXPECT_EQ(marketplace_description("", "cz"), STYLESHEET + TOGGLE_SCRIPT);
  EXPECT_EQ(marketplace_description("a     b  c", "cz"), STYLESHEET + TOGGLE_SCRIPT + "a b c");
}

}  // namespace
}  // namespace talmo::testing
