// Product names against the private database. Every product row holds only the columns its case
// is about, so the expected name shows exactly what one stored value contributes.
#include "product/product_name.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

// Product 1 is a whole laptop as the shop stores it.
void insert_full_laptop() {
  PrivateMariaDb::instance().run_sql(
      "INSERT INTO laptop_adatbazis (id, gyarto, tipusmegnevezes, kiegeszitok, processzor, "
      "kijelzo, merevlemez, memoria, grafikus_kartya, optikai_meghajto, `3g`, "
      "operacios_rendszer) VALUES (1, 'Lenovo', 'IdeaPad Z580', ' táska; egér ', "
      "'Intel|Core i5-3210M|2.5 GHz|3.1 GHz|2|3 MB', '15.6\"|HD|1366x768|1|0|0|', "
      "'1|500GB|HDD|5400 rpm|1^1|32GB|SSD||1', '4GB|DDR3|1600 MHz', "
      "'1|NVIDIA|GT 630M|1GB|DDR3||1', '1|DVD-RW|1', '0||', "
      "'1|1|Windows 7 Home Premium 64 bit|1');");
}

const std::string kFullComponents = "i5-3210M, 15.6HD, 500GB+32GB, 4GB, GT 630M 1GB, DVD RW, Win7";

struct Row {
  int id;
  std::string column, value, name;
};

// id 100 on: one column set, the generator's name for it. Without a processor part every part
// is preceded by ", ".
const std::vector<Row> kRows = {
    // Processor: the marketing words go, in order, case-insensitively; blanks at the ends too.
    {100, "processzor", "Intel|Intel® Core i5-3210M|2.5 GHz", "Inteli5-3210M"},
    {101, "processzor", "Intel|Pentium Dual-Core T4500", "T4500"},
    {102, "processzor", "AMD|E-450 Dual-Core", "E-450"},         // "dual-core" before "dual-"
    {104, "processzor", "Intel|Atom N2600 Core", "N2600 Core"},  // "core " needs its blank
    {106, "processzor", "Nvidia|Tegra 3 T30S", "Tegra 3"},
    {107, "processzor",
     "AMD|E-450 \xC2\x99"
     "250 APU",
     "E-450 APU"},
    {108, "processzor", "Intel|Core® i7-2630QM", "Corei7-2630QM"},
    {109, "processzor", "Intel", ""},  // no type stored
    {110, "processzor", "x|Qualcomm Xeon Exynos OMAP ARM Turion II Athlon II Fusion 2 Duo 42",
     "42"},
    // Display: size without its inch signs, the kind right after it.
    {120, "kijelzo", "13.3\"\"", ", 13.3"},
    // Disks: the size of every entry, present or not, joined by "+".
    {130, "merevlemez", "0||^1|1TB|HDD", ", +1TB"},
    // Graphics: type and trimmed memory of the first card only; no type, no part.
    {150, "grafikus_kartya", "1|NVIDIA|GT 630M| 1GB |GDDR3||1^1|Intel|HD 4000||||1",
     ", GT 630M 1GB"},
    {151, "grafikus_kartya", "1|Intel||1GB", ""},
    // Optical drive: only with the flag exactly "1"; a DVD/Blu-ray combo stays "DVD RW".
    {160, "optikai_meghajto", "0|DVD-RW", ""},
    {162, "optikai_meghajto", "1|Blu-ray DVD combo", ", DVD RW"},
    {163, "optikai_meghajto", "1|BLU-RAY író", ", Blu-Ray"},
    {164, "optikai_meghajto", "1|Külső CD-ROM", ", Külső CD-ROM"},
    // Mobile broadband: the stored text as it is.
    {170, "3g", "1|HSDPA dvd", ", HSDPA dvd"},
    // Operating system: the last matching keyword of the list wins, whatever the text's order.
    {180, "operacios_rendszer", "Mac OS with Linux tools", ", OS X"},
    {181, "operacios_rendszer", "WINDOWS 8 Pro", ", Win8"},
    {182, "operacios_rendszer", "Windows 10 Home", ""},  // no fall-back to the stored text
};

std::string sql_text(const std::string& value) {
  std::string quoted;
  for (char c : value)
    quoted += c == '\'' ? std::string("''") : std::string(1, c);
  return "'" + quoted + "'";
}

class ProductName : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb& db = PrivateMariaDb::instance();
    db.reset_database();
    insert_full_laptop();
    std::string sql;
    for (const Row& row : kRows) {
      sql += "INSERT INTO laptop_adatbazis (id, `" + row.column + "`) VALUES (" +
             std::to_string(row.id) + ", " + sql_text(row.value) + ");\n";
    }
    db.run_sql(sql);
    db.run_sql(
        "INSERT INTO laptop_adatbazis (id, gyarto, tipusmegnevezes, kiegeszitok, processzor, "
        "memoria, operacios_rendszer) VALUES "
        "(2, '', 'Aspire One', NULL, 'Intel|Core i3-2350M', '4GB', 'Windows 8'), "
        "(3, NULL, 'Iconia', 'táska', NULL, NULL, NULL), "
        "(4, 'Asus', NULL, '  ', NULL, '2GB', NULL);");
  }

  DbSession db_;
};

TEST_F(ProductName, EachStoredValueGivesItsPart) {
  CapturedStdout out;
  for (const Row& row : kRows) {
    EXPECT_EQ(TERMEKNEV_GENERATOR(db_.query, std::to_string(row.id), "hu"), row.name)
        << row.column << " = " << row.value;
  }
  EXPECT_EQ(out.text(), "");
}

TEST_F(ProductName, WrappersAroundTheComponents) {
  struct Case {
    std::string id, components, arukereso, talmo;
  };
  CapturedStdout out;
  for (const Case& c : std::vector<Case>{
           {"1", kFullComponents, "IdeaPad Z580 - " + kFullComponents + ", táska, egér",
            "Lenovo IdeaPad Z580 - " + kFullComponents + ", táska, egér"},
           // Skipped parts leave no separator; an empty manufacturer adds nothing.
           {"2", "i3-2350M, 4GB, Win8", "Aspire One - i3-2350M, 4GB, Win8",
            "Aspire One - i3-2350M, 4GB, Win8"},
           // Accessories follow the components even when there are none.
           {"3", "", "Iconia - , táska", "Iconia - , táska"},
           // Blank accessories are none; a missing model name leaves the " - ".
           {"4", ", 2GB", " - , 2GB", "Asus  - , 2GB"},
           {"999", "", " - ", " - "},
       }) {
    EXPECT_EQ(TERMEKNEV_GENERATOR(db_.query, c.id, "hu"), c.components) << c.id;
    EXPECT_EQ(GENERATE_ARUKERESO_NAME(db_.query, c.id, "hu"), c.arukereso) << c.id;
    EXPECT_EQ(GENERATE_TALMO_TERMEKNEV(db_.query, c.id, "hu"), c.talmo) << c.id;
  }
  EXPECT_EQ(out.text(), "");
}

}  // namespace
}  // namespace talmo::testing
