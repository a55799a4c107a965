#include "description/description_frame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "app/strings.h"
#include "description/article_links.h"
#include "description/html_helpers.h"

namespace talmo {
namespace {

// The inline styles as the sections write them, typed out from the shop's pages.
const std::string kP1 =
    "style=\"font-size: 12px; line-height: 15px; margin-left: 5px; font-family: 'Federo', Arial, "
    "sans-serif;\"";
const std::string kP2 =
    "style=\"font-size: 14px; text-align: justify; margin-left: 15px; font-family: 'Federo', "
    "Arial, sans-serif; line-height: 16px;\"";
const std::string kCell00 =
    "align=\"left\" style=\"border-style: solid; border-color: black; border-top-width: 0px; "
    "border-left-width: 0px; border-right-width: 0px; border-bottom-width: 0px;\"";
const std::string kCell01 =
    "align=\"left\" style=\"border-style: solid; border-color: black; border-top-width: 0px; "
    "border-left-width: 0px; border-right-width: 0px; border-bottom-width: 1px;\"";
const std::string kCell10 =
    "align=\"left\" style=\"border-style: solid; border-color: black; border-top-width: 0px; "
    "border-left-width: 1px; border-right-width: 0px; border-bottom-width: 0px;\"";
const std::string kCell11 =
    "align=\"left\" style=\"border-style: solid; border-color: black; border-top-width: 0px; "
    "border-left-width: 1px; border-right-width: 0px; border-bottom-width: 1px;\"";
const std::string kTableBeforeId =
    "align=\"left\" cellpadding=\"5\" cellspacing=\"0\" style=\"width: 100%; border-style: solid; "
    "border-color: black; border-top-width: 2px; border-left-width: 2px; border-right-width: 1px; "
    "border-bottom-width: 0px; display: none;\" ";

TEST(HtmlHelpers, FixedAttributeTexts) {
  struct Case {
    const char* name;
    std::string (*helper)();
    const std::string& expected;
  };
  for (const Case& c : std::vector<Case>{
           {"HTML_ADDPSTYLING1", HTML_ADDPSTYLING1, kP1},
           {"HTML_ADDPSTYLING2", HTML_ADDPSTYLING2, kP2},
           {"HTML_ADDTHSTYLING1", HTML_ADDTHSTYLING1, kCell01},
           {"HTML_ADDTHSTYLING2", HTML_ADDTHSTYLING2, kCell11},
           {"HTML_ADDTDSTYLING_ALL", HTML_ADDTDSTYLING_ALL, kCell10},
           {"HTML_ADDTDSTYLING_EMPTY", HTML_ADDTDSTYLING_EMPTY, kCell00},
           {"HTML_ADDTDSTYLING_BOTTOM1", HTML_ADDTDSTYLING_BOTTOM1, kCell01},
           {"HTML_ADDTDSTYLING_BOTTOM2", HTML_ADDTDSTYLING_BOTTOM2, kCell11},
           {"table_style_before_id", table_style_before_id, kTableBeforeId},
       }) {
    EXPECT_EQ(c.helper(), c.expected) << c.name;
  }
}

TEST(HtmlHelpers, TableIdByNumber) {
  const std::vector<std::pair<std::int32_t, std::string>> cases = {
      {0, "cpu"}, {1, "display"}, {2, "memory"}, {3, "hdd"}, {4, "gcard"}, {5, ""}, {-1, ""},
  };
  for (const auto& [tipus, id] : cases)
    EXPECT_EQ(HTML_ADDTABLESTYLING(tipus), kTableBeforeId + "id=\"" + id + "\"") << tipus;
}

TEST(HtmlHelpers, Strong) {
  EXPECT_EQ(HTML_STRONG("1. Grafikus kártya"), "<strong>1. Grafikus kártya</strong>");
  EXPECT_EQ(HTML_STRONG(""), "<strong></strong>");
}

TEST(ArticleLinks, WholeTexts) {
  // Spot checks of the assembled links: base address, attribute and trailing text placement.
  EXPECT_EQ(PROCESSZOR_LINK,
            "<br /><br />A Kelvor laptop processzorok teljesítményét összefoglaló cikkünket itt "
            "tekintheti meg: <a href=\"https://www.kelvor.hu/laptop-processzor\" "
            "target=\"_self\">Kelvor - laptop processzor</a>");
  EXPECT_EQ(KIJELZO_LINK,
            "<br /><br />A kijelzőhöz Kelvor pixelhibagaranciát is igényelhet: <a "
            "href=\"https://www.kelvor.hu/store/szolgaltatasok-pixelgarancia/pixelerror-leiras\" "
            "blank=\"_self\">Kelvor - pixelhiba garancia</a>");
  EXPECT_EQ(KIEGESZITOK_LINK,
            "<br /><br />További érdekes kiegészítőket a Kelvor <a "
            "href=\"https://www.kelvor.hu/laptop-kiegeszitok\" target=\"_self\">kiegészítõk</a> "
            "rovatában talál!");
  EXPECT_EQ(LINUX_LINK,
            "<bt /><br />Bõvebb információt a Linux operációs rendszerről itt olvashat: <a "
            "href=\"https://www.kelvor.hu/linux-operacios-rendszer\" target=\"_self\">Linux "
            "operációs rendszer</a>");
  EXPECT_EQ(GRAFIKUS_KARTYA_LINK_SE,
            "<br /><br />A laptop grafikus kártyák összehasonlító elemzését  <a "
            "href=\"https://www.kelvor.hu/grafikus-kartyak?tmpl=component\" "
            "target=\"_blank\">itt</a> tekintheti meg.");
  EXPECT_EQ(WINDOWS8_LINK_SE,
            "<br /><br />Amennyiben szeretne többet megtudni a Windows 8 -ról, úgy tekintse meg  "
            "<a href=\"https://www.kelvor.hu/blog/77-10-ok-windows-8?tmpl=component\" "
            "target=\"_blank\">cikkünket</a>");
}

TEST(ArticleLinks, AddLinkOnlyOnTheHungarianSite) {
  const std::vector<std::string> links = {PROCESSZOR_LINK,      MEREVLEMEZ_LINK,  KIJELZO_LINK,
                                          GRAFIKUS_KARTYA_LINK, KIEGESZITOK_LINK, WINDOWS8_LINK,
                                          LINUX_LINK,           ANDROID_LINK};
  for (const std::string& link : links) {
    EXPECT_EQ(ADDLINK(link, "hu"), link);
    EXPECT_EQ(ADDLINK(link, "HU"), link);
    EXPECT_EQ(ADDLINK(link, "sk"), "") << link;
    EXPECT_EQ(ADDLINK(link, "cz"), "") << link;
    EXPECT_EQ(ADDLINK(link, ""), "") << link;
  }
  // Only the eight texts exactly: not the marketplace forms, not a near copy.
  for (const std::string& other :
       {PROCESSZOR_LINK_SE, PROCESSZOR_LINK + " ", upper_ascii(LINUX_LINK),
        std::string("<a href=\"https://www.kelvor.hu/\">Kelvor</a>"), std::string()}) {
    EXPECT_EQ(ADDLINK(other, "hu"), "") << other;
  }
}

TEST(DescriptionFrame, ToggleScriptAndStylesheetLineEnds) {
  EXPECT_EQ(std::count(TOGGLE_SCRIPT.begin(), TOGGLE_SCRIPT.end(), '\r'), 10);
  EXPECT_EQ(TOGGLE_SCRIPT.find('\n'), std::string::npos);
  EXPECT_TRUE(TOGGLE_SCRIPT.starts_with("<script type=\"text/javascript\">\r<!--\r  function"));
  EXPECT_TRUE(TOGGLE_SCRIPT.ends_with("  }\r//-->\r</script>"));
  EXPECT_EQ(STYLESHEET.find_first_of("\r\n"), std::string::npos);
  EXPECT_EQ(std::count(STYLESHEET.begin(), STYLESHEET.end(), '{'), 14);
  EXPECT_TRUE(STYLESHEET.ends_with("border-bottom-width: 0px; }</style>"));
}

// A processor section as the sections write it: heading paragraph, script, a table with its
// header row and two body rows (the last with the bottom borders).
std::string raw_processor_section() {
  return "<a name=\"cpu\"></a><div id=\"sor\"><div id=\"megnevezes\"><p "
         "id=\"megnevezes_szoveg\"><strong>Processzor</strong></p></div><div id=\"leiras\"><p "
         "id=\"leiras_szoveg\" itemprop=\"ingredients\">Intel Core i5<br />" +
         TOGGLE_SCRIPT + "<p " + kP1 +
         ">CPU részletei: <a href=\"#cpu\" onclick=\"show_item('cpu');\">mutat/elrejt</a></p>"
         "<table " +
         kTableBeforeId + "id=\"cpu\"><tr><th " + kCell01 + "><p " + kP1 +
         "><strong>CPU</strong></p></th><th " + kCell11 + "><p " + kP2 +
         "><strong>Érték</strong></p></th></tr><tr><td " + kCell00 + "><p " + kP1 +
         "><strong>Gyártó</strong></p></td><td " + kCell10 + "><p " + kP2 +
         ">Intel</p></td></tr><tr><td " + kCell01 + "><p " + kP1 +
         "><strong>Típus</strong></p></td><td " + kCell11 + "><p " + kP2 +
         ">Core i5</p></td></tr></table></p></div></div>";
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
      {upper_ascii("<p " + kP1 + ">") + "x", "<p id=\"item_detail_text\">x"},
      {upper_ascii("<td " + kCell11 + ">") + "x", "<td align=\"left\" id=\"table_td_custom4\">x"},
      {upper_ascii("<table " + kTableBeforeId) + "ID=\"HDD\">",
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

TEST(DescriptionFrame, MarketplaceOnTheSlovakSite) {
  std::string restyled = "<p id=\"popis_text\">Intel Core i5";
  for (const std::string& link : {PROCESSZOR_LINK, KIJELZO_LINK, MEREVLEMEZ_LINK,
                                  GRAFIKUS_KARTYA_LINK, KIEGESZITOK_LINK, WINDOWS8_LINK})
    restyled += ADDLINK(link, "sk");
  restyled += "<br /><img src=\"images/leiras/intel_i5.png\" />  </p>";
  EXPECT_EQ(marketplace_description(restyled, "sk"),
            STYLESHEET + TOGGLE_SCRIPT +
                "<p id=\"popis_text\">Intel Core i5<br /><img "
                "src=\"https://www.kelvor.sk/images/leiras/intel_i5.png\" /> </p>");
}

TEST(DescriptionFrame, MarketplaceLeavesPlainTextAlone) {
  EXPECT_EQ(marketplace_description("a b", "hu"), STYLESHEET + TOGGLE_SCRIPT + "a b");
  EXPECT_EQ(marketplace_description("", "cz"), STYLESHEET + TOGGLE_SCRIPT);
  EXPECT_EQ(marketplace_description("a     b  c", "cz"), STYLESHEET + TOGGLE_SCRIPT + "a b c");
}

}  // namespace
}  // namespace talmo
