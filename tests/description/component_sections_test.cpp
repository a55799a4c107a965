// The five component sections against the private database: whole sections on the Hungarian and
// Slovak sites, numbered disk and card tables, the brand and search icons, and what a failure
// leaves standing.
#include "description/component_sections.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "description/article_links.h"
#include "tests/description/section_html.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

using SectionFn = std::string (*)(Query&, const std::string&, const std::string&);

// Every label the sections translate, one per line; the Hungarian rows repeat the label.
const std::string kLabels =
    "Processzor\nCPU részletei:\nCPU\nGyártó\nTípus\nÓrajel\nTurbó órajel\nMagok száma\n"
    "Gyorsítótár\nKijelzõ\nKijelzõ részletei:\nMéret\nHD\nFelbontás\nLED megvilágítás\nMatt\n"
    "TochScreen\n3D\nIPS\nMemória\nMemória részletei:\nMerevlemez\nMerevlemez részletei:\n"
    "Sebesség\nDarabszám\nGrafikus kártya\nGrafikus kártya részletei:\nMemóriaméret\n"
    "Memóriatípus\nMemóriasebesség\nÉrték\nmutat/elrejt\nA készülék rendelkezik ezzel az "
    "elemmel\nA készülék nem rendelkezik ezzel az elemmel";

// The Slovak shop's words: those of the memory and disk sections, one table of each kind.
const std::map<std::string, std::string> kSlovak = {
    {"Memória", "Pamäť"},
    {"Memória részletei:", "Podrobnosti pamäte:"},
    {"Merevlemez", "Pevný disk"},
    {"Merevlemez részletei:", "Podrobnosti disku:"},
    {"Méret", "Veľkosť"},
    {"Típus", "Typ"},
    {"Órajel", "Frekvencia"},
    {"Sebesség", "Rýchlosť"},
    {"Darabszám", "Počet kusov"},
    {"Érték", "Hodnota"},
    {"mutat/elrejt", "zobraziť/skryť"},
    {"A készülék rendelkezik ezzel az elemmel", "Zariadenie má tento prvok"},
    {"A készülék nem rendelkezik ezzel az elemmel", "Zariadenie nemá tento prvok"}};

// One site's words and row wrapper.
struct Site {
  std::string code;
  // A label without a Slovak row shows empty on the Slovak site.
  std::string t(const std::string& hu) const {
    const auto sk = kSlovak.find(hu);
    return code == "hu" ? hu : sk == kSlovak.end() ? "" : sk->second;
  }
  std::string link(const std::string& article) const { return code == "hu" ? article : ""; }
};
const Site kHu{"hu"};
const Site kSk{"sk"};

std::string section(const Site& s, const std::string& id, const std::string& left,
                    const std::string& right) {
  return "<a name=\"" + id + "\"></a>" + (s.code == "hu" ? hu_row : sk_row)(left, "", right);
}

std::string search(const std::string& keyword, const std::string& icon) {
  return "<br />" + search_icon(keyword, icon);
}

// "<br />", the heading paragraph and the table's opening tag.
std::string table(const Site& s, const std::string& id, const std::string& heading) {
  return "<br /><p " + kLabelStyle + ">" + s.t(heading) + " <a href=\"#" + id +
         "\" onclick=\"show_item('" + id + "');\">" + s.t("mutat/elrejt") + "</a></p><table " +
         kTableStyle + "id=\"" + id + "\">";
}

std::string header(const Site& s, const std::string& number, const std::string& name) {
  return "<tr><th " + cell_style("0px", "1px") + "><p " + kLabelStyle + "><strong>" + number +
         s.t(name) + "</strong></p></th><th " + cell_style("1px", "1px") + "><p " + kValueStyle +
         "><strong>" + s.t("Érték") + "</strong></p></th></tr>";
}

// The labels of each table, in the order of its rows.
using Labels = std::vector<std::string>;
const Labels kCpuRows = {"Gyártó", "Típus", "Órajel", "Turbó órajel", "Magok száma", "Gyorsítótár"};
const Labels kDisplayRows = {"Méret", "HD",         "Felbontás", "LED megvilágítás",
                             "Matt",  "TochScreen", "3D",        "IPS"};
const Labels kMemoryRows = {"Méret", "Típus", "Órajel"};
const Labels kDiskRows = {"Méret", "Típus", "Sebesség", "Darabszám"};
const Labels kCardRows = {"Gyártó",       "Típus",           "Memóriaméret",
                          "Memóriatípus", "Memóriasebesség", "Darabszám"};

// The rows of one table. A row's icon says yes when its value is not empty, or, when `icons` is
// given, where it holds '+'. The last row has the bottom borders.
std::string rows(const Site& s, const Labels& labels, const Labels& values,
                 const std::string& icons = "") {
  std::string html;
  for (std::size_t i = 0; i < labels.size(); ++i) {
    const bool last = i + 1 == labels.size();
    const bool yes = icons.empty() ? !values[i].empty() : icons[i] == '+';
    html += "<tr><td " + cell_style("0px", last ? "1px" : "0px") + "><p " + kLabelStyle +
            "><strong>" + s.t(labels[i]) + "</strong></p></td><td " +
            cell_style("1px", last ? "1px" : "0px") + "><p " + kValueStyle +
            "><img style=\"vertical-align: middle;\" alt=\"" +
            s.t(yes ? "A készülék rendelkezik ezzel az elemmel"
                    : "A készülék nem rendelkezik ezzel az elemmel") +
            "\" src=\"images/leiras/" + (yes ? "true" : "false") + ".png\" /> " + values[i] +
            "</p></td></tr>";
  }
  return html;
}

// The five sections of product 1 in the order of the functions below.
std::vector<std::string> full_laptop(const Site& s) {
  return {
      section(s, "cpu", s.t("Processzor") + search("intel+i7", "intel_i7.png"),
              "Intel Core i7-7500U (2 x 2.7 GHz / 3.5 GHz Turbo, 4 MB Cache)" +
                  s.link(PROCESSZOR_LINK) + table(s, "cpu", "CPU részletei:") +
                  header(s, "", "CPU") +
                  rows(s, kCpuRows, {"Intel", "Core i7-7500U", "2.7 GHz", "3.5 GHz", "2", "4 MB"}) +
                  "</table>"),
      section(s, "display", s.t("Kijelzõ") + search("full+hd", "fullhd.png"),
              "15.6 Full HD (1920x1080) LED matt IPS" + s.link(KIJELZO_LINK) +
                  table(s, "display", "Kijelzõ részletei:") + header(s, "", "Kijelzõ") +
                  rows(s, kDisplayRows, {"15.6", "Full HD", "1920x1080", "", "", "", "", ""},
                       "+++++--+") +
                  "</table>"),
      section(s, "memory", s.t("Memória"),
              "8 GB DDR4 2400 MHz" + table(s, "memory", "Memória részletei:") +
                  header(s, "", "Memória") + rows(s, kMemoryRows, {"8 GB", "DDR4", "2400 MHz"}) +
                  "</table>"),
      section(s, "hdd", s.t("Merevlemez") + search("ssd", "ssd.png"),
              "256 GB SSD + 1 TB HDD 5400 rpm" + s.link(MEREVLEMEZ_LINK) +
                  table(s, "hdd", "Merevlemez részletei:") + header(s, "1. ", "Merevlemez") +
                  rows(s, kDiskRows, {"256 GB", "SSD", "", "1"}) + header(s, "2. ", "Merevlemez") +
                  rows(s, kDiskRows, {"1 TB", "HDD", "5400 rpm", "1"}) + "</table>"),
      section(s, "gcard", s.t("Grafikus kártya") + search("nvidia", "nvidia.png"),
              "NVIDIA GeForce MX150 2 GB GDDR5" + s.link(GRAFIKUS_KARTYA_LINK) +
                  table(s, "gcard", "Grafikus kártya részletei:") +
                  header(s, "1. ", "Grafikus kártya") +
                  rows(s, kCardRows, {"NVIDIA", "GeForce MX150", "2 GB", "GDDR5", "", "1"}) +
                  "</table>"),
  };
}

const SectionFn kSections[] = {GENERATELEIRAS_PROCESSZOR, GENERATELEIRAS_KIJELZO,
                               GENERATELEIRAS_MEMORY, GENERATELEIRAS_MEREVLEMEZ,
                               GENERATELEIRAS_GCARD};

std::string error_line(const std::string& statement) {
  return "Error in Query: \r\r" + statement + "\n\r\r\n";
}
std::string translation_sql(const std::string& word) {
  return "SELECT forditas FROM laptop_adatbazis_forditasok WHERE szocikk='" + word +
         "' AND language='HU' ORDER BY id DESC LIMIT 1;";
}

// Products 10 on: one component each, and the left cell it gets (title and icons). The icon
// tables are tried in order and the first match wins.
struct IconCase {
  SectionFn fn;
  const char* column;
  std::string stored, left;
};
const std::vector<IconCase> kIconCases = {
    {GENERATELEIRAS_PROCESSZOR, "processzor", "intel|Core i5-8250U||||",
     "Processzor" + search("intel+i5", "intel_i5.png")},
    {GENERATELEIRAS_PROCESSZOR, "processzor", "Intel|Core i5 / i7||||",
     "Processzor" + search("intel+i7", "intel_i7.png")},
    {GENERATELEIRAS_PROCESSZOR, "processzor", "Intel|Celeron N3060||||",
     "Processzor" + search("intel", "intel.png")},
    {GENERATELEIRAS_PROCESSZOR, "processzor", "NVIDIA|Tegra K1||||",
     "Processzor" + search("nvidia+tegra", "nvidia_tegra.png")},
    {GENERATELEIRAS_PROCESSZOR, "processzor", "AMD|A10-9600P||||",
     "Processzor" + search("amd", "amd.png")},
    {GENERATELEIRAS_PROCESSZOR, "processzor", "Qualcomm|Snapdragon 835||||", "Processzor"},
    {GENERATELEIRAS_KIJELZO, "kijelzo", "15.6|full hd|1920x1080|0|0|0|",
     "Kijelzõ" + search("full+hd", "fullhd.png")},
    {GENERATELEIRAS_KIJELZO, "kijelzo", "15.6|Full HD|1920x1080|0|0|0|3D",
     "Kijelzõ" + search("full+hd", "fullhd.png") + search("3d", "3d.png")},
    {GENERATELEIRAS_KIJELZO, "kijelzo", "15.6|Full HD+|1920x1080|0|0|0|", "Kijelzõ"},
    {GENERATELEIRAS_KIJELZO, "kijelzo", "13.3|HD|1366x768|0|0|0|3d Vision",
     "Kijelzõ" + search("3d", "3d.png")},
    {GENERATELEIRAS_MEREVLEMEZ, "merevlemez", "1|512 GB|m.2 Ssd||1",
     "Merevlemez" + search("ssd", "ssd.png")},
    // Only a disk in the laptop counts.
    {GENERATELEIRAS_MEREVLEMEZ, "merevlemez", "0|256 GB|SSD||1", "Merevlemez"},
    {GENERATELEIRAS_GCARD, "grafikus_kartya", "1|AMD|Radeon 530|2 GB|GDDR5||1",
     "Grafikus kártya" + search("amd+radeon", "amd_radeon.png")},
    {GENERATELEIRAS_GCARD, "grafikus_kartya", "1|AMD|Vega 8||||1",
     "Grafikus kártya" + search("amd", "amd.png")},
    {GENERATELEIRAS_GCARD, "grafikus_kartya", "1|Matrox|G200||||1", "Grafikus kártya"},
};

class ComponentSections : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb& db = PrivateMariaDb::instance();
    db.reset_database();
    std::string words;
    std::istringstream labels(kLabels);
    for (std::string hu; std::getline(labels, hu);)
      words += std::string(words.empty() ? "" : ", ") + "('" + hu + "', 'HU', '" + hu + "')";
    for (const auto& [hu, sk] : kSlovak)
      words += ", ('" + hu + "', 'SK', '" + sk + "')";
    db.run_sql("INSERT INTO laptop_adatbazis_forditasok (szocikk, language, forditas) VALUES " +
               words + ";");
    db.run_sql(
        "INSERT INTO laptop_adatbazis (id, processzor, kijelzo, memoria, merevlemez, "
        "grafikus_kartya) VALUES "
        "(1, 'Intel|Core i7-7500U|2.7 GHz|3.5 GHz|2|4 MB', '15.6|Full HD|1920x1080|1|1|0|IPS', "
        "'8 GB|DDR4|2400 MHz', '1|256 GB|SSD||1^1|1 TB|HDD|5400 rpm|1', "
        "'1|NVIDIA|GeForce MX150|2 GB|GDDR5||1'), "
        "(2, NULL, NULL, NULL, '0|500 GB|HDD|5400 rpm|1^1|1 TB|SSHD|7200 rpm|2', "
        "'|Intel|HD Graphics 520||||^1|NVIDIA|GeForce 940MX|2 GB|GDDR5||1'), "
        "(3, NULL, NULL, NULL, NULL, NULL), "
        "(50, NULL, '15.6|Full HD|1920x1080', NULL, NULL, NULL), "
        "(51, NULL, NULL, NULL, '1|500 GB|SSD||egy', NULL), "
        "(52, 'Intel|Core i7-7500U', NULL, NULL, NULL, NULL);");
    std::string icons;
    for (std::size_t i = 0; i < kIconCases.size(); ++i) {
      icons += "INSERT INTO laptop_adatbazis (id, " + std::string(kIconCases[i].column) +
               ") VALUES (" + std::to_string(10 + i) + ", '" + kIconCases[i].stored + "');";
    }
    db.run_sql(icons);
  }

  DbSession db_;
};

TEST_F(ComponentSections, FullLaptopOnBothSites) {
  CapturedStdout out;
  for (const Site* site : {&kHu, &kSk}) {
    const std::vector<std::string> expected = full_laptop(*site);
    for (std::size_t i = 0; i < expected.size(); ++i) {
      SCOPED_TRACE(site->code + " section " + std::to_string(i));
      expect_same_text(expected[i], kSections[i](db_.query, "1", site->code));
    }
  }
  EXPECT_EQ(out.text(), "");
}

TEST_F(ComponentSections, AbsentEntriesLeaveGapsInTheNumbering) {
  CapturedStdout out;
  expect_same_text(
      section(kHu, "hdd", "Merevlemez",
              " + 2 x 1 TB SSHD 7200 rpm" + MEREVLEMEZ_LINK +
                  table(kHu, "hdd", "Merevlemez részletei:") + header(kHu, "2. ", "Merevlemez") +
                  rows(kHu, kDiskRows, {"1 TB", "SSHD", "7200 rpm", "2"}) + "</table>"),
      GENERATELEIRAS_MEREVLEMEZ(db_.query, "2", "hu"));
  // The icon follows the first stored card although that card is not in the laptop.
  expect_same_text(
      section(kHu, "gcard", "Grafikus kártya" + search("intel", "intel.png"),
              " + NVIDIA GeForce 940MX 2 GB GDDR5" + GRAFIKUS_KARTYA_LINK +
                  table(kHu, "gcard", "Grafikus kártya részletei:") +
                  header(kHu, "2. ", "Grafikus kártya") +
                  rows(kHu, kCardRows, {"NVIDIA", "GeForce 940MX", "2 GB", "GDDR5", "", "1"}) +
                  "</table>"),
      GENERATELEIRAS_GCARD(db_.query, "2", "hu"));
  EXPECT_EQ(out.text(), "");
}

TEST_F(ComponentSections, FrameWithoutComponents) {
  struct Case {
    SectionFn fn;
    std::string id, expected;
  };
  CapturedStdout out;
  for (const Case& c : std::vector<Case>{
           // No such product: the frame and the article link only.
           {GENERATELEIRAS_PROCESSZOR, "99", section(kHu, "cpu", "Processzor", PROCESSZOR_LINK)},
           {GENERATELEIRAS_KIJELZO, "99", section(kHu, "display", "Kijelzõ", KIJELZO_LINK)},
           {GENERATELEIRAS_MEMORY, "99", section(kHu, "memory", "Memória", "")},
           {GENERATELEIRAS_MEREVLEMEZ, "99", section(kHu, "hdd", "Merevlemez", MEREVLEMEZ_LINK)},
           {GENERATELEIRAS_GCARD, "99",
            section(kHu, "gcard", "Grafikus kártya", GRAFIKUS_KARTYA_LINK)},
           // The product without disks or cards still gets the heading and an empty table.
           {GENERATELEIRAS_MEREVLEMEZ, "3",
            section(kHu, "hdd", "Merevlemez",
                    MEREVLEMEZ_LINK + table(kHu, "hdd", "Merevlemez részletei:") + "</table>")},
           {GENERATELEIRAS_GCARD, "3",
            section(kHu, "gcard", "Grafikus kártya",
                    GRAFIKUS_KARTYA_LINK + table(kHu, "gcard", "Grafikus kártya részletei:") +
                        "</table>")},
       }) {
    SCOPED_TRACE(c.id + ": " + c.expected.substr(0, 20));
    expect_same_text(c.expected, c.fn(db_.query, c.id, "hu"));
  }
  EXPECT_EQ(out.text(), "");
}

TEST_F(ComponentSections, BrandAndSearchIcons) {
  const std::string before = "<p id=\"megnevezes_szoveg\"><strong>";
  CapturedStdout out;
  for (std::size_t i = 0; i < kIconCases.size(); ++i) {
    const IconCase& c = kIconCases[i];
    const std::string text = c.fn(db_.query, std::to_string(10 + i), "hu");
    const std::size_t begin = text.find(before) + before.size();
    EXPECT_EQ(text.substr(begin, text.find("</strong></p></div>") - begin), c.left) << c.stored;
  }
  EXPECT_EQ(out.text(), "");
}

TEST_F(ComponentSections, FailureKeepsThePiecesBuiltBeforeIt) {
  struct Case {
    SectionFn fn;
    std::string id, expected, statement, why;
  };
  for (const Case& c : std::vector<Case>{
           {GENERATELEIRAS_KIJELZO, "50", section(kHu, "display", "Kijelzõ", KIJELZO_LINK),
            "SELECT kijelzo FROM laptop_adatbazis WHERE id='50';",
            "a display with fewer than seven sub-values fails in its one-line text"},
           {GENERATELEIRAS_MEREVLEMEZ, "51", section(kHu, "hdd", "Merevlemez", MEREVLEMEZ_LINK),
            "SELECT merevlemez FROM laptop_adatbazis WHERE id='51';",
            "a disk count that is not a number fails before the ssd icon"},
           {GENERATELEIRAS_PROCESSZOR, "52",
            section(kHu, "cpu", "Processzor" + search("intel+i7", "intel_i7.png"),
                    "Intel Core i7-7500U " + PROCESSZOR_LINK),
            translation_sql("Órajel"),
            "the table misses the clock: text and icon stand, the half table goes"},
           {GENERATELEIRAS_PROCESSZOR, "3", section(kHu, "cpu", "Processzor", PROCESSZOR_LINK),
            translation_sql("Típus"), "an empty processor has only one sub-value"},
           {GENERATELEIRAS_GCARD, "1'",
            section(kHu, "gcard", "Grafikus kártya", GRAFIKUS_KARTYA_LINK),
            "SELECT grafikus_kartya FROM laptop_adatbazis WHERE id='1'';",
            "a quote in the id breaks the statement"},
       }) {
    SCOPED_TRACE(c.why);
    CapturedStdout out;
    expect_same_text(c.expected, c.fn(db_.query, c.id, "hu"));
    EXPECT_EQ(out.text(), error_line(c.statement));
  }
}

}  // namespace
}  // namespace talmo::testing
