// The optical drive, operating system, keyboard, stock and warranty sections against the private
// database, compared whole with the HTML the shop's pages show.
#include "description/simple_sections.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "description/article_links.h"
#include "tests/description/section_html.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

using Section = std::string (*)(Query&, const std::string&, const std::string&);

// Operating systems and the optical drive put a line break before each icon.
std::string icon(const std::string& keyword, const std::string& file) {
  return "<br />" + search_icon(keyword, file);
}

const std::string kBluRay = icon("blu-ray", "bluray.png");
const std::string kOs = "Operációs rendszer";
const std::string kNoOs = "Operációs rendszer nélkül";

class SimpleSections : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb& db = PrivateMariaDb::instance();
    db.reset_database();
    db.run_sql(
        "INSERT INTO laptop_adatbazis (id, optikai_meghajto, operacios_rendszer, billentyuzet, "
        "status, garancia) VALUES "
        "(1, '1|Blu-ray író|1', '1|1|Windows 8 Pro|1^1|1|Ubuntu Linux|1', '1|Magyar|1', "
        "'Raktáron', '2 év'), "
        "(2, '0||', '', '0||', 'Rendelésre', '1 év'), "
        "(3, '0|BD-ROM (blu-ray)|1', '1|1||1', NULL, NULL, NULL), "
        "(4, '1||2', '   ', NULL, NULL, NULL), "
        "(5, 'x|Blu-ray|1', '1|1|Linux|1^x|1|Windows 8|1', '1|Magyar', NULL, NULL), "
        "(6, NULL, '1|1|Android 4.4|1^0|1|Windows 8|1^1|0|Windows XP|1^1|1|Chrome OS|1^"
        "1|1|WINDOWS 7 Home|1^1|1|Linux Android|1', NULL, NULL, NULL);");
    db.run_sql(
        "INSERT INTO laptop_adatbazis_forditasok (szocikk, language, forditas) VALUES "
        "('Operációs rendszer', 'HU', 'Operációs rendszer'), "
        "('Operációs rendszer nélkül', 'HU', 'Operációs rendszer nélkül'), "
        "('Operációs rendszer', 'SK', 'Operačný systém'), "
        "('Optikai meghajtó', 'SK', 'Optická mechanika'), "
        "('Optikai meghajtó nélkül', 'SK', 'Bez optickej mechaniky'), "
        "('Billentyûzet', 'SK', 'Klávesnica'), ('Billentyûzet nélkül', 'SK', 'Bez klávesnice'), "
        "('Készlet', 'SK', 'Sklad'), ('Raktáron', 'SK', 'Skladom'), "
        "('Garancia', 'SK', 'Záruka'), ('2 év', 'SK', '2 roky');");
  }

  DbSession db_;
};

struct Case {
  Section section;
  std::string id, site, html;
};

void expect_sections(Query& query, const std::vector<Case>& cases, const std::string& console) {
  CapturedStdout out;
  for (const Case& c : cases)
    EXPECT_EQ(c.section(query, c.id, c.site), c.html) << c.id << " " << c.site;
  EXPECT_EQ(out.text(), console);
}

TEST_F(SimpleSections, NameAndValueTranslated) {
  const std::string sk_cd = "Optická mechanika";
  expect_sections(
      db_.query,
      {
          {GENERATELEIRAS_OPTIKAIMEGHAJTO, "1", "sk", sk_row(sk_cd, kBluRay, "Blu-ray író")},
          {GENERATELEIRAS_OPTIKAIMEGHAJTO, "2", "sk", sk_row(sk_cd, "", "Bez optickej mechaniky")},
          // The icon follows the stored text even for a drive marked absent.
          {GENERATELEIRAS_OPTIKAIMEGHAJTO, "3", "sk",
           sk_row(sk_cd, kBluRay, "Bez optickej mechaniky")},
          {GENERATELEIRAS_OPTIKAIMEGHAJTO, "4", "sk", sk_row(sk_cd, "", "2 x Van")},
          {GENERATELEIRAS_BILLENTYUZET, "1", "sk", sk_row("Klávesnica", "", "Magyar")},
          {GENERATELEIRAS_BILLENTYUZET, "2", "sk", sk_row("Klávesnica", "", "Bez klávesnice")},
          {GENERATELEIRAS_KESZLET, "1", "sk", sk_row("Sklad", "", "Skladom")},
          {GENERATELEIRAS_KESZLET, "2", "sk", sk_row("Sklad", "", "")},
          {GENERATELEIRAS_KESZLET, "1", "cz", sk_row("", "", "")},
          {GENERATELEIRAS_GARANCIA, "1", "sk", sk_row("Záruka", "", "2 roky")},
      },
      "");
}

TEST_F(SimpleSections, InstalledOperatingSystems) {
  const std::string icons_1 = icon("windows+8", "windows8.png") + icon("linux", "linux.png");
  expect_sections(
      db_.query,
      {
          {GENERATELEIRAS_OPERACIOSRENDSZER, "1", "hu",
           hu_row(kOs, icons_1, "Windows 8 Pro<br />Ubuntu Linux" + WINDOWS8_LINK + LINUX_LINK)},
          {GENERATELEIRAS_OPERACIOSRENDSZER, "1", "sk",
           sk_row("Operačný systém", icons_1, "Windows 8 Pro<br />Ubuntu Linux")},
          // Unmarked entries are skipped; the first name in the icon list wins; each article
          // once, Linux before Android.
          {GENERATELEIRAS_OPERACIOSRENDSZER, "6", "hu",
           hu_row(kOs,
                  icon("android", "android.png") + icon("windows+7", "windows7.png") +
                      icon("android", "android.png"),
                  "Android 4.4<br />Chrome OS<br />WINDOWS 7 Home<br />Linux Android" + LINUX_LINK +
                      ANDROID_LINK)},
          {GENERATELEIRAS_OPERACIOSRENDSZER, "3", "hu", hu_row(kOs, "", "")},
          {GENERATELEIRAS_OPERACIOSRENDSZER, "2", "hu", hu_row(kOs, "", kNoOs)},
          {GENERATELEIRAS_OPERACIOSRENDSZER, "4", "hu", hu_row(kOs, "", kNoOs)},
      },
      "");
}

TEST_F(SimpleSections, FailurePrintsTheSectionStatementAndShowsTheEmptyValue) {
  struct Failure {
    Case expected;
    std::string column;
  };
  for (const Failure& f : std::vector<Failure>{
           {{GENERATELEIRAS_OPTIKAIMEGHAJTO, "5", "sk",
             sk_row("Optická mechanika", "", "Bez optickej mechaniky")},
            "optikai_meghajto"},
           {{GENERATELEIRAS_BILLENTYUZET, "5", "sk", sk_row("Klávesnica", "", "Bez klávesnice")},
            "billentyuzet"},
           // The Linux entry read before the failure is dropped with its icon and article.
           {{GENERATELEIRAS_OPERACIOSRENDSZER, "5", "hu", hu_row(kOs, "", kNoOs)},
            "operacios_rendszer"},
           {{GENERATELEIRAS_KESZLET, "1'", "sk", sk_row("Sklad", "", "")}, "status"},
       }) {
    const Case& c = f.expected;
    expect_sections(db_.query, {c},
                    "Error in Query: \r\rSELECT " + f.column + " FROM laptop_adatbazis WHERE id='" +
                        c.id + "';\n\r\r\n");
  }
}

}  // namespace
}  // namespace talmo::testing
