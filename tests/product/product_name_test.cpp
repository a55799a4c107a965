// Product names over tests/product/fixtures/products.sql. Products 100 on hold only the column
// their row is about, so the expected name shows exactly what one stored value contributes.
#include "product/product_name.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

struct Row {
  int id;
  std::string column, value, name;
};

// Without a processor part every part is preceded by ", ".
const std::vector<Row> kRows = {
    // Processor: the marketing words go in list order ("core " before "® "), ignoring case,
    // then the blanks at the ends.
    {100, "processzor", "Intel|Intel® Core i5-3210M|2.5 GHz", "Inteli5-3210M"},
    {101, "processzor", "AMD|E-450 Dual-Core", "E-450"},         // "dual-core" before "dual-"
    {102, "processzor", "Intel|Atom N2600 Core", "N2600 Core"},  // "core " needs its blank
    {103, "processzor",
     "AMD|E-450 \xC2\x99"
     "250 APU",
     "E-450 APU"},
    {104, "processzor",
     "x|Pentium Celeron Qualcomm Xeon Exynos OMAP ARM Turion II Phenom II Athlon II Fusion 2 Duo "
     "Triple-42 T30S",
     "42"},
    {120, "kijelzo", "13.3\"\"", ", 13.3"},          // size without its inch signs
    {130, "merevlemez", "0||^1|1TB|HDD", ", +1TB"},  // every entry's size, present or not
    // Graphics: type and trimmed memory of the first card only; no type, no part.
    {150, "grafikus_kartya", "1|NVIDIA|GT 630M| 1GB |GDDR3||1^1|Intel|HD 4000||||1",
     ", GT 630M 1GB"},
    {151, "grafikus_kartya", "1|Intel||1GB", ""},
    // Optical drive: only with the flag exactly "1".
    {160, "optikai_meghajto", "0|DVD-RW", ""},
    {161, "optikai_meghajto", "1|BLU-RAY író", ", Blu-Ray"},
    {162, "optikai_meghajto", "1|Külső CD-ROM", ", Külső CD-ROM"},
    // Operating system: the last matching keyword of the list wins, whatever the text's order.
    {180, "operacios_rendszer", "Mac OS with Linux tools", ", OS X"},
    {181, "operacios_rendszer", "WINDOWS 8 Pro", ", Win8"},
};

class ProductName : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb& db = PrivateMariaDb::instance();
    db.reset_database();
    db.run_sql_file(source_path("tests/product/fixtures/products.sql"));
    std::string sql;
    for (const Row& row : kRows) {
      sql += "INSERT INTO laptop_adatbazis (id, `" + row.column + "`) VALUES (" +
             std::to_string(row.id) + ", '" + row.value + "');\n";
    }
    db.run_sql(sql);
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
           // An empty manufacturer adds nothing.
           {"20", "i3-2350M, 4GB, Win8", "Aspire One - i3-2350M, 4GB, Win8",
            "Aspire One - i3-2350M, 4GB, Win8"},
           // Accessories, trimmed, ";" read as ",", follow the components even when there are none.
           {"21", "", "Iconia - , táska, egér", "Iconia - , táska, egér"},
           // Blank accessories are none; a missing model name leaves the " - ".
           {"22", ", 2GB", " - , 2GB", "Asus  - , 2GB"},
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
