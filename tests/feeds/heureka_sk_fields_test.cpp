// The Heureka.sk fields, parameter block and line row against the private database.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/strings.h"
#include "description/short_description.h"
#include "feeds/heureka_sk.h"
#include "feeds/heureka_sk_params.h"
#include "product/product_links.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

// The stored components of product 1, a complete laptop; products 8 and 9 are copies of it.
const std::string kSpecColumns =
    "processzor, kijelzo, memoria, merevlemez, grafikus_kartya, optikai_meghajto, wifi, usb, "
    "kartyaolvaso, hdmi, vga, webkamera, bluetooth, lan, operacios_rendszer, garancia";

// Product 1's parameter block for the Slovak shop, pair after pair.
const std::string kParam =
    "<PARAM_NAME><![CDATA[Procesor]]></PARAM_NAME><VAL><![CDATA[Intel Core i5-8250U (4 x 1.6 GHz "
    "/ 3.4 GHz Turbo, 6 MB Cache)]]></VAL>"
    "<PARAM_NAME><![CDATA[Displej]]></PARAM_NAME><VAL><![CDATA[15.6 Full HD (1920x1080) LED "
    "matt]]></VAL>"
    "<PARAM_NAME><![CDATA[Pamäť]]></PARAM_NAME><VAL><![CDATA[8 GB DDR4 2400 MHz]]></VAL>"
    "<PARAM_NAME><![CDATA[HDD]]></PARAM_NAME><VAL><![CDATA[256 GB SSD + 2 x 1 TB HDD 5400 "
    "rpm]]></VAL>"
    "<PARAM_NAME><![CDATA[Grafická karta]]></PARAM_NAME><VAL><![CDATA[NVIDIA GeForce MX150 2 GB "
    "GDDR5]]></VAL>"
    "<PARAM_NAME><![CDATA[Optická mechanika]]></PARAM_NAME><VAL><![CDATA[DVD-RW]]></VAL>"
    "<PARAM_NAME><![CDATA[Wifi]]></PARAM_NAME><VAL><![CDATA[Van]]></VAL>"
    "<PARAM_NAME><![CDATA[USB]]></PARAM_NAME><VAL><![CDATA[2 x USB 2.0 + USB 3.0]]></VAL>"
    "<PARAM_NAME><![CDATA[Čítačka pamäťových kariet]]></PARAM_NAME><VAL><![CDATA[3 x "
    "Van]]></VAL>"
    "<PARAM_NAME><![CDATA[HDMI]]></PARAM_NAME><VAL><![CDATA[HDMI 1.4]]></VAL>"
    "<PARAM_NAME><![CDATA[VGA - D-SUB]]></PARAM_NAME><VAL><![CDATA[]]></VAL>"
    "<PARAM_NAME><![CDATA[Webkamera]]></PARAM_NAME><VAL><![CDATA[HD 720p]]></VAL>"
    "<PARAM_NAME><![CDATA[Bluetooth]]></PARAM_NAME><VAL><![CDATA[Bluetooth 4.1]]></VAL>"
    "<PARAM_NAME><![CDATA[Lan]]></PARAM_NAME><VAL><![CDATA[Gigabit]]></VAL>"
    "<PARAM_NAME><![CDATA[Operačný systém]]></PARAM_NAME><VAL><![CDATA[Windows 10 "
    "Home]]></VAL>"
    "<PARAM_NAME><![CDATA[Záruka]]></PARAM_NAME><VAL><![CDATA[2 roky]]></VAL>";

const std::string kPathStart = "Heureka.sk | Elektronika | Počítače a kancelária | ";

class HeurekaSkFields : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb& db = PrivateMariaDb::instance();
    db.reset_database();
    db.run_sql("INSERT INTO laptop_adatbazis (id, sorszam, gyarto, nev, tipusmegnevezes, tipus, " +
               kSpecColumns +
               ") VALUES (1, '12345', 'Asus', 'K55VD-SX123', 'K55VD', 'k55vd', "
               "'Intel|Core i5-8250U|1.6 GHz|3.4 GHz|4|6 MB', '15.6|Full HD|1920x1080|1|1|0|', "
               "'8 GB|DDR4|2400 MHz', '1|256 GB|SSD||1^1|1 TB|HDD|5400 rpm|2', "
               "'1|NVIDIA|GeForce MX150|2 GB|GDDR5||1', '1|DVD-RW|1', '1||1', "
               "'1|1|USB 2.0|2^1|1|USB 3.0|1', '1||3', '1|HDMI 1.4|1', '0||1', '1|1|HD 720p|1', "
               "'1|Bluetooth 4.1|1', '1|Gigabit|1', '1|1|Windows 10 Home|1', '2 év');");
    db.run_sql("INSERT INTO laptop_adatbazis (id, " + kSpecColumns + ") SELECT 8, " + kSpecColumns +
               " FROM laptop_adatbazis WHERE id=1;" + "INSERT INTO laptop_adatbazis (id, " +
               kSpecColumns + ") SELECT 9, " + kSpecColumns + " FROM laptop_adatbazis WHERE id=1;" +
               "UPDATE laptop_adatbazis SET wifi='' WHERE id=8;" +
               "UPDATE laptop_adatbazis SET usb='1|1|USB 2.0|két' WHERE id=9;");
    db.run_sql(
        "INSERT INTO laptop_adatbazis (id, sorszam, gyarto, tipusmegnevezes, processzor, memoria, "
        "kiegeszitok, extra_mezo) VALUES "
        "(2, '11000', 'Lenovo', 'IdeaPad 3', 'Intel|i3-1005G1', '4 GB', '  táska; egér  ', "
        "'Ajándék egér'), "
        "(3, '11001', ' Dell ', 'Vostro', 'Intel|i3-1005G1', NULL, '   ', NULL), "
        "(4, '11000/B', 'HP', NULL, NULL, NULL, NULL, NULL), "
        "(6, '11002', '  Acer ', NULL, NULL, NULL, NULL, NULL), "
        "(7, '11003', 'Acer', NULL, NULL, NULL, NULL, NULL);");
    db.run_sql(
        "INSERT INTO categories (cat_id, cat_category_name, cat_category_level) VALUES "
        "(1, 'Laptop', '0'), (2, 'Tablet', '0'), (3, 'Minden egyben PC - AIO PC', '0');"
        "INSERT INTO product_categories (prod_cat_product_id, prod_cat_category_id) VALUES "
        "('1', '1'), ('6', '2'), ('7', '3');"
        "INSERT INTO fix_arak (fix_product_id, fix_product_type_id, fix_ar_hu, fix_ar_sk) VALUES "
        "('1', '0', '0', '499.9');");
    db.run_sql(
        "INSERT INTO laptop_adatbazis_forditasok (szocikk, language, forditas) VALUES "
        "('2 év', 'SK', '2 roky'), ('Laptop', 'SK', 'notebook'), ('Tablet', 'SK', 'TABLETY'), "
        "('Minden egyben PC - AIO PC', 'SK', 'Počítač všetko v jednom'), "
        "('táska, egér', 'SK', 'taška, myš'), ('táska; egér', 'SK', 'bez čiarok'), "
        "('Ajándék egér', 'SK', 'Darčeková myš');");
  }

  DbSession db_;
};

TEST_F(HeurekaSkFields, ItemIdTurnsEverySlashIntoAHyphen) {
  CapturedStdout out;
  EXPECT_EQ(GENERATE_HEUREKASK_ITEM_ID(db_.query, "4", "sk"), "11000-B-HP");
  EXPECT_EQ(GENERATE_HEUREKASK_ITEM_ID(db_.query, "99", "sk"), "");
  EXPECT_EQ(out.text(), "");
}

TEST_F(HeurekaSkFields, ProductNamesModelComponentsAndTranslatedExtras) {
  struct Case {
    std::string id, site, product, why;
  };
  CapturedStdout out;
  for (const Case& c : std::vector<Case>{
           {"2", "sk", "Lenovo IdeaPad 3 - i3-1005G1, 4 GB taška, myš Darčeková myš",
            "accessories looked up with commas for semicolons, then the extra field"},
           {"2", "cz", "Lenovo IdeaPad 3 - i3-1005G1, 4 GB  ",
            "untranslated accessories and extra still leave their blanks"},
           {"3", "sk", " Dell  Vostro - i3-1005G1",
            "maker and model as stored; blank accessories add nothing"},
           {"99", "sk", "", "no product"},
       }) {
    EXPECT_EQ(GENERATE_HEUREKASK_PRODUCT(db_.query, c.id, c.site), c.product) << c.why;
  }
  EXPECT_EQ(GENERATE_HEUREKASK_PRODUCTNAME(db_.query, "3", "sk"), "Dell Vostro");
  EXPECT_EQ(out.text(), "");
}

TEST_F(HeurekaSkFields, CategoryTextByTranslatedMainCategory) {
  struct Case {
    std::string id, site, text, why;
  };
  CapturedStdout out;
  for (const Case& c : std::vector<Case>{
           {"6", "sk", kPathStart + "Tablet | Acer", "\"TABLETY\" holds tablet"},
           {"7", "sk", kPathStart + "Počítač všetko v jednom | Acer", "its own translated name"},
           {"1", "cz", kPathStart + " | Asus", "no translation leaves the level empty"},
           {"4", "sk", kPathStart + " | HP", "no category"},
       }) {
    EXPECT_EQ(GENERATE_HEUREKASK_CATEGORYTEXT(db_.query, c.id, c.site), c.text) << c.why;
  }
  EXPECT_EQ(out.text(), "");
}

TEST_F(HeurekaSkFields, ParamRunsAllSixteenPairsInOrder) {
  CapturedStdout out;
  EXPECT_EQ(GENERATE_HEUREKASK_PARAM(db_.query, "1", "sk"), kParam);
  // An empty column still gives its pair.
  EXPECT_EQ(GENERATE_HEUREKASK_PARAM(db_.query, "8", "sk"),
            replace_all(kParam, "[Wifi]]></PARAM_NAME><VAL><![CDATA[Van]]>",
                        "[Wifi]]></PARAM_NAME><VAL><![CDATA[]]>"));
  // A missing product gives no pairs, yet every statement ran, the warranty's last.
  EXPECT_EQ(GENERATE_HEUREKASK_PARAM(db_.query, "99", "sk"), "");
  EXPECT_EQ(db_.query.sql_text(), "SELECT garancia FROM laptop_adatbazis WHERE id='99';\n");
  EXPECT_EQ(out.text(), "");
}

TEST_F(HeurekaSkFields, FailingParameterIsReportedWithItsMessageAndLeftOut) {
  const std::string usb_pair =
      "<PARAM_NAME><![CDATA[USB]]></PARAM_NAME><VAL><![CDATA[2 x USB 2.0 + USB 3.0]]></VAL>";
  CapturedStdout out;
  EXPECT_EQ(GENERATE_HEUREKASK_PARAM(db_.query, "9", "sk"), replace_all(kParam, usb_pair, ""));
  EXPECT_EQ(out.text(),
            "Error in Query: \r\rSELECT usb FROM laptop_adatbazis WHERE id='9';\n\r\r"
            "SQL Return Message: \r\r\"két\" is an invalid integer\n");
}

TEST_F(HeurekaSkFields, LineAppendsOneRowOfFourteenFieldsInColumnOrder) {
  ColumnTable HEUREKASK;
  std::vector<StringList> rows;
  HEUREKASK.row_added = [&](const StringList&, const StringList& row) { rows.push_back(row); };
  GENERATE_HEUREKASK_HEADER(HEUREKASK);
  CapturedStdout out;
  // Fields of other modules come from their own functions; the fixture makes them all differ.
  const StringList expected = {
      "12345-Asus",
      "Asus K55VD",
      GENERATE_HEUREKASK_PRODUCT(db_.query, "1", "sk"),
      GENERATE_HEUREKASK_DESCRIPTION(db_.query, "1", "sk"),
      GENERATE_HEUREKASK_URL(db_.query, "1", "sk"),
      GENERATE_HEUREKASK_IMGURL(db_.query, "1", "sk"),
      GENERATE_HEUREKASK_IMGURL_ALTERNATIVE(db_.query, "1", "sk"),
      "499,90",
      kParam,
      "Asus",
      kPathStart + "Notebooky | Asus",
      "3",
      "<DELIVERY_ID>UPS</DELIVERY_ID><DELIVERY_PRICE>4,40</DELIVERY_PRICE>"
      "<DELIVERY_COD>4,40</DELIVERY_COD>",
      "",
  };
  EXPECT_EQ(GENERATE_HEUREKASK_LINE(db_.query, "1", "sk", HEUREKASK), "");
  ASSERT_EQ(HEUREKASK.row_count, 2);
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0], expected);
  EXPECT_EQ(out.text(), "");
}

}  // namespace
}  // namespace talmo::testing
