// The features section against the private database, compared whole with the HTML the shop's
// pages show.
#include "description/features_section.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/description/section_html.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

std::string row(const std::string& icons, const std::string& value) {
  return sk_row("Ďalšie vlastnosti", icons, value);
}

// A present feature's line: the yes-image, the translated label and the value.
std::string yes(const std::string& label, const std::string& value) {
  return "<img style=\"vertical-align: middle;\" alt=\"Zariadenie má tento prvok\" "
         "src=\"images/leiras/true.png\" /> <strong>" +
         label + ": </strong>" + value;
}

const std::string kMore = "<br /><strong>Ďalšie informácie: </strong>";

class FeaturesSection : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb& db = PrivateMariaDb::instance();
    db.reset_database();
    db.run_sql(
        "INSERT INTO laptop_adatbazis (id, wifi, usb, kartyaolvaso, hdmi, vga, webkamera, esata, "
        "express_card, bluetooth, lan, tv, `3g`, ujjlenyomat_olvaso, kulonlegessegek, "
        "kiegeszitok, akkumulator) VALUES "
        "(1, '1|802.11 b/g/n|1', '1|1|USB 3.0|2', '1|SD/MMC|1', '1||1', '1|Van VGA kimenet|1', "
        "'1|1|1.3 MP|1', '1||1', '1|ExpressCard/54|1', '1|Bluetooth 4.0|1', '1||2', "
        "'1|DVB-T|1', '1||1', '1||1', 'Háttérvilágítás', 'Táska, VGA adapter', '6 cella|4 óra'), "
        "(2, '1||1', NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, "
        "NULL, NULL, NULL), "
        "(3, '1||1', 'x|1|USB 3.0|1', NULL, '1||1', NULL, NULL, NULL, NULL, NULL, NULL, NULL, "
        "NULL, NULL, 'Háttérvilágítás', NULL, NULL);");
    db.run_sql(
        "INSERT INTO laptop_adatbazis (id, usb, akkumulator) VALUES "
        "(10, '1|1|USB 2.0|2', '4 cella'), (11, '1|1|USB 3.0|1^1|1|USB 2.0|2', '|5 óra'), "
        "(12, NULL, NULL), (13, NULL, NULL);");
    db.run_sql(
        "INSERT INTO extra_jellemzo (ex_product_type_id, ex_product_id, ex_site, ex_text) VALUES "
        "('0', '12', 'sk', 'A'), ('0', '12', 'hu', 'H'), ('1', '12', 'sk', 'X'), "
        "('0', '12', 'sk', 'B'), ('0', '1', 'sk', 'Ajándék egér'), ('0', '3', 'sk', 'E');");
    db.run_sql(
        "INSERT INTO laptop_adatbazis_forditasok (szocikk, language, forditas) VALUES "
        "('Egyéb jellemzõk', 'SK', 'Ďalšie vlastnosti'), "
        "('További információk', 'SK', 'Ďalšie informácie'), "
        "('A készülék rendelkezik ezzel az elemmel', 'SK', 'Zariadenie má tento prvok'), "
        "('WiFi', 'SK', 'Wi-Fi'), ('USB csatlakozók', 'SK', 'USB porty'), "
        "('Kártyaolvasó', 'SK', 'Čítačka kariet'), ('HDMI', 'SK', 'HDMI'), ('VGA', 'SK', 'VGA'), "
        "('Webkamera', 'SK', 'Webkamera'), ('e-SATA', 'SK', 'eSATA'), "
        "('ExpressCard', 'SK', 'Express Card'), ('BlueTooth', 'SK', 'Bluetooth'), "
        "('LAN', 'SK', 'Sieť'), ('TV-Tuner', 'SK', 'TV tuner'), ('3G', 'SK', '3G modem'), "
        "('Ujjlenyomat olvasó', 'SK', 'Čítačka odtlačkov'), ('Egyebek', 'SK', 'Ostatné'), "
        "('Háttérvilágítás', 'SK', 'Podsvietenie'), ('Kiegészítõk', 'SK', 'Príslušenstvo'), "
        "('Táska, VGA adapter', 'SK', 'Vankúš, VGA adaptér'), "
        "('Akkumulátor (cella)', 'SK', 'Batéria (články)'), ('Üzemidõ', 'SK', 'Výdrž');");
  }

  DbSession db_;
};

TEST_F(FeaturesSection, LinesIconsAndExtraTexts) {
  struct Case {
    std::string id, html;
  };
  const std::string full_icons =
      search_icon("wifi", "wifi.png") + "<br /><br />" + search_icon("usb+3", "usb3.png") +
      "<br /><br />" + search_icon("hdmi", "hdmi.png") + "<br /><br />" +
      search_icon("esata", "esata.png") + "<br /><br />" +
      search_icon("express+card", "expresscard.png") + "<br /><br />" +
      search_icon("bluetooth", "bluetooth.png") + "<br /><br />" + search_icon("3g", "3g.png");
  // "Van" goes from the built values only, "vga" from the VGA value only.
  const std::string full_rows =
      yes("Wi-Fi", "802.11 b/g/n") + "<br />" + yes("USB porty", "2 x USB 3.0") + "<br />" +
      yes("Čítačka kariet", "SD/MMC") + "<br />" + yes("HDMI", "") + "<br />" +
      yes("VGA", "  kimenet") + "<br />" + yes("Webkamera", "1.3 MP") + "<br />" +
      yes("eSATA", "") + "<br />" + yes("Express Card", "ExpressCard/54") + "<br />" +
      yes("Bluetooth", "Bluetooth 4.0") + "<br />" + yes("Sieť", "2 x ") + "<br />" +
      yes("TV tuner", "DVB-T") + "<br />" + yes("3G modem", "") + "<br />" +
      yes("Čítačka odtlačkov", "") + "<br /><strong>Ostatné: </strong>Podsvietenie" +
      "<br /><strong>Príslušenstvo: </strong>Vankúš, VGA adaptér" +
      "<br /><strong>Batéria (články): </strong>6 cella<br /><strong>Výdrž: </strong>4 óra";
  CapturedStdout out;
  for (const Case& c : std::vector<Case>{
           {"1", row(full_icons, full_rows + kMore + "Ajándék egér")},
           {"2", row(search_icon("wifi", "wifi.png"), yes("Wi-Fi", ""))},
           // No "3.0", no icon; a battery without its running time.
           {"10", row("", yes("USB porty", "2 x USB 2.0") +
                              "<br /><strong>Batéria (články): </strong>4 cella")},
           // Without cells the stored battery text leads its line.
           {"11", row(search_icon("usb+3", "usb3.png"),
                      yes("USB porty", "USB 3.0 + 2 x USB 2.0") +
                          "<br />|5 óra<br /><strong>Výdrž: </strong>5 óra")},
           // The later extra text puts its break before both.
           {"12", row("", kMore + "<br />AB")},
           // Nothing set, and no row at all: the frame only.
           {"13", row("", "")},
           {"99", row("", "")},
       }) {
    EXPECT_EQ(GENERATELEIRAS_EGYEBJELLEMZOK(db_.query, c.id, "sk"), c.html) << c.id;
  }
  EXPECT_EQ(out.text(), "");
}

const std::string kFeatures =
    "SELECT wifi, usb, kartyaolvaso, hdmi, vga, webkamera, esata, express_card, bluetooth, lan, "
    "tv, 3g, ujjlenyomat_olvaso, kulonlegessegek, kiegeszitok, akkumulator FROM laptop_adatbazis "
    "WHERE id='";

TEST_F(FeaturesSection, FailureInTheListKeepsTheLinesBeforeIt) {
  CapturedStdout out;
  // Translations ran on the section's own cursor, so the line names the features statement.
  EXPECT_EQ(GENERATELEIRAS_EGYEBJELLEMZOK(db_.query, "3", "sk"),
            row(search_icon("wifi", "wifi.png"), yes("Wi-Fi", "") + kMore + "E"));
  EXPECT_EQ(out.text(), "Error in Query: \r\r" + kFeatures + "3';\n\r\r\n");
}

TEST_F(FeaturesSection, EachQueryReportsItsOwnFailure) {
  CapturedStdout out;
  EXPECT_EQ(GENERATELEIRAS_EGYEBJELLEMZOK(db_.query, "1'", "sk"), row("", ""));
  EXPECT_EQ(out.text(), "Error in Query: \r\r" + kFeatures +
                            "1'';\n\r\r\n"
                            "Error in Query: \r\rSELECT ex_text FROM extra_jellemzo WHERE "
                            "ex_product_type_id='0' AND ex_product_id='1'' AND ex_site='sk';\n"
                            "\r\r\n");
}

}  // namespace
}  // namespace talmo::testing
