// Product identifiers, page addresses and picture addresses against the private database.
#include "product/product_links.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

using Builder = std::string (*)(Query&, const std::string&, const std::string&);

struct UrlCase {
  Builder builder;
  const char* name;
  std::string idx, site, expected;
};

class ProductLinks : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    PrivateMariaDb::instance().reset_database();
    PrivateMariaDb::instance().run_sql(
        "INSERT INTO laptop_adatbazis (id, sorszam, gyarto, nev, tipusmegnevezes, tipus) VALUES "
        "(1, '12345', 'Asus', 'VivoBook 15 X512FA (Ezüst)', 'X512FA-EJ099T', 'x512fa-ej099t'), "
        "(4, 'AKC-123', 'Lenovo', 'IdeaPad 3', 'IdeaPad 3 15ADA05', '81w1'), "
        "(5, 'x12', 'HP', 'Pavilion', 'Pavilion 15', '15-cs'), "
        "(6, '13000', 'O''Neil', 'Book Pro', 'BP', 'bp-01-x'), "
        "(7, '11000', 'HP', 'Pavilion All-in-One', 'Pavilion 24-xa0010nn', '24-xa0010nn'), "
        "(8, NULL, NULL, NULL, NULL, NULL);"
        "INSERT INTO categories (cat_id, cat_category_name, cat_category_level) VALUES "
        "(1, 'Laptop', '0'), (2, 'Tablet', '0'), (3, 'Minden egyben PC - AIO PC', '0');"
        "INSERT INTO product_categories (prod_cat_product_id, prod_cat_category_id) VALUES "
        "('1', '1'), ('4', '1'), ('6', '2'), ('7', '3');"
        "INSERT INTO laptop_adatbazis_forditasok (szocikk, language, forditas) VALUES "
        "('laptop', 'SK', 'Notebooky'), ('laptop', 'HU', 'Laptopok'), "
        "('minden-egyben-pc-aio-pc', 'SK', 'Vsetko-v-jednom-PC');");
  }

  void expect_urls(const std::vector<UrlCase>& cases) {
    for (const UrlCase& c : cases) {
      EXPECT_EQ(c.builder(db_.query, c.idx, c.site), c.expected)
          << c.name << " " << c.idx << " " << c.site;
    }
  }

  DbSession db_;
};

TEST_F(ProductLinks, SkuAndSlug) {
  CapturedStdout out;
  expect_urls({
      {GENERATE_PRODUCT_SKU, "sku", "1", "hu", "12345/Asus"},
      {GENERATE_PRODUCT_SKU, "sku", "8", "hu", "/"},
      {GENERATE_PRODUCT_SKU, "sku", "99", "hu", ""},
      {GENERATE_SLUG, "slug", "1", "hu", "asus-vivobook-15-x512fa--ezust--12345"},
      {GENERATE_SLUG, "slug", "4", "hu", "https://www.kelvor.hu"},  // clearance item
      {GENERATE_SLUG, "slug", "99", "hu", ""},
  });
  EXPECT_EQ(out.text(), "");
}

TEST_F(ProductLinks, ProductPageAddresses) {
  CapturedStdout out;
  expect_urls({
      {GENERATE_TALMO_TERMEKLINK, "talmo", "1", "hu",
       "https://www.kelvor.hu/laptop/asus-vivobook-15-x512fa--ezust--12345-elado/"
       "?utm_source=talmo&utm_medium=12345-asus&utm_campaign=konverzio"},
      {GENERATE_ARUKERESO_PRODUCT_URL, "arukereso", "1", "hu",
       "https://www.kelvor.hu/laptop/asus-vivobook-15-x512fa--ezust--12345-elado/"
       "?utm_source=arukereso&utm_medium=12345-asus&utm_campaign=konverzio"},
      {GENERATE_GRANDO_PAGE_LINK, "grando", "1", "hu",
       "https://www.kelvor.hu/laptop/asus-vivobook-15-x512fa--ezust--12345-elado/"
       "?utm_source=grando&utm_medium=12345-asus&utm_campaign=konverzio"},
      {GENERATE_HEUREKASK_URL, "heureka", "1", "sk",
       "https://www.kelvor.sk/notebooky/asus-vivobook-15-x512fa--ezust--12345-cena/"
       "?utm_source=heureka&utm_medium=12345-asus&utm_campaign=konverzio"},
      // The Hungarian feeds' end word and untranslated category hold for any site.
      {GENERATE_TALMO_TERMEKLINK, "talmo", "1", "sk",
       "https://www.kelvor.sk/laptop/asus-vivobook-15-x512fa--ezust--12345-elado/"
       "?utm_source=talmo&utm_medium=12345-asus&utm_campaign=konverzio"},
      {GENERATE_HEUREKASK_URL, "heureka", "7", "sk",
       "https://www.kelvor.sk/vsetko-v-jednom-pc/hp-pavilion-24-xa0010nn-11000-cena/"
       "?utm_source=heureka&utm_medium=11000-hp&utm_campaign=konverzio"},
      // No Slovak word for the category: the path is left empty.
      {GENERATE_HEUREKASK_URL, "heureka", "6", "sk",
       "https://www.kelvor.sk//o-neil-book-pro-13000-cena/"
       "?utm_source=heureka&utm_medium=13000-o'neil&utm_campaign=konverzio"},
      // No product: its parts are left empty.
      {GENERATE_TALMO_TERMEKLINK, "talmo", "99", "hu",
       "https://www.kelvor.hu//-elado/?utm_source=talmo&utm_medium=&utm_campaign=konverzio"},
      {GENERATE_HEUREKASK_URL, "heureka", "99", "sk",
       "https://www.kelvor.sk//-cena/?utm_source=heureka&utm_medium=&utm_campaign=konverzio"},
  });
  EXPECT_EQ(out.text(), "");
}

TEST_F(ProductLinks, ClearanceItemsLinkToTheHomePageOnlyOnGrandoAndHeureka) {
  CapturedStdout out;
  expect_urls({
      {GENERATE_GRANDO_PAGE_LINK, "grando", "4", "hu", "https://www.kelvor.hu"},
      {GENERATE_HEUREKASK_URL, "heureka", "4", "sk", "https://www.kelvor.sk"},
      {GENERATE_TALMO_TERMEKLINK, "talmo", "4", "hu",
       "https://www.kelvor.hu/laptop/https://www.kelvor.hu-elado/"
       "?utm_source=talmo&utm_medium=akc-123-lenovo&utm_campaign=konverzio"},
  });
  EXPECT_EQ(out.text(), "");
}

TEST_F(ProductLinks, SerialThatIsNotANumberLeavesTheSlugEmpty) {
  CapturedStdout out;
  EXPECT_EQ(GENERATE_SLUG(db_.query, "5", "hu"), "");
  EXPECT_EQ(
      GENERATE_TALMO_TERMEKLINK(db_.query, "5", "hu"),
      "https://www.kelvor.hu//-elado/?utm_source=talmo&utm_medium=x12-hp&utm_campaign=konverzio");
  const std::string line =
      "Error in Query: \r\rSELECT sorszam, gyarto, nev, tipusmegnevezes FROM laptop_adatbazis "
      "WHERE id='5';\n\r\r\n";
  EXPECT_EQ(out.text(), line + line);
}

TEST_F(ProductLinks, BrokenProductIdPrintsEveryFailedStatement) {
  CapturedStdout out;
  EXPECT_EQ(GENERATE_TALMO_TERMEKLINK(db_.query, "1'", "hu"),
            "https://www.kelvor.hu//-elado/?utm_source=talmo&utm_medium=&utm_campaign=konverzio");
  // The clearance check comes first on Grando and a failure there ends the address.
  EXPECT_EQ(GENERATE_GRANDO_PAGE_LINK(db_.query, "1'", "hu"), "");
  EXPECT_EQ(GENERATE_GRANDO_IMAGE_URL(db_.query, "1'", "hu"),
            "https://www.kelvor.hu/images/stories/virtuemart/product/");
  EXPECT_EQ(
      out.text(),
      "Error in Query: \r\rSELECT sorszam, gyarto FROM laptop_adatbazis WHERE id='1'';\n\r\r\n"
      "Error in Query: \r\rSELECT * FROM product_categories a LEFT JOIN categories b ON "
      "a.prod_cat_category_id=b.cat_id WHERE a.prod_cat_product_id='1'' AND "
      "b.cat_category_level='0' ORDER BY b.cat_id DESC;\n\r\r\n"
      "Error in Query: \r\rSELECT sorszam, gyarto, nev, tipusmegnevezes FROM "
      "laptop_adatbazis WHERE id='1'';\n\r\r\n"
      "Error in Query: \r\rSELECT sorszam FROM laptop_adatbazis WHERE id='1'';\n\r\r\n"
      "Error in Query: \r\rSELECT gyarto, tipus FROM laptop_adatbazis WHERE id='1'';\n\r\r\n");
}

TEST_F(ProductLinks, PictureFileNames) {
  CapturedStdout out;
  EXPECT_EQ(GENERATE_PIC_FILE_URL("3", db_.query, "1", "cz"),
            "ASUS-X512FA-EJ099T-03-www.kelvor.cz.jpg");
  EXPECT_EQ(GENERATE_PRODUCT_FULL_IMAGE(db_.query, "8", "hu"), "--01-www.kelvor.hu.jpg");
  EXPECT_EQ(GENERATE_PIC_FILE_URL("2", db_.query, "99", "hu"), "");
  EXPECT_EQ(out.text(), "");
}

TEST_F(ProductLinks, PictureAddressesOfEachFeed) {
  const std::string hu = "https://www.kelvor.hu/images/stories/virtuemart/product/";
  const std::string sk = "https://www.kelvor.sk/images/stories/virtuemart/product/";
  CapturedStdout out;
  expect_urls({
      {GENERATE_ARUKERESO_IMAGE_URL, "arukereso", "1", "hu",
       hu + "ASUS-X512FA-EJ099T-01-www.kelvor.hu.jpg"},
      {GENERATE_TALMO_FOTOLINK, "talmo", "1", "hu", hu + "ASUS-X512FA-EJ099T-01-www.kelvor.hu.jpg"},
      {GENERATE_GRANDO_IMAGE_URL, "grando", "1", "hu",
       hu + "ASUS-X512FA-EJ099T-01-www.kelvor.hu.jpg"},
      {GENERATE_VATERA_20_KEPEK1, "vatera1", "1", "hu",
       hu + "ASUS-X512FA-EJ099T-01-www.kelvor.hu.jpg"},
      {GENERATE_VATERA_21_KEPEK2, "vatera2", "1", "hu",
       hu + "ASUS-X512FA-EJ099T-02-www.kelvor.hu.jpg"},
      {GENERATE_VATERA_22_KEPEK3, "vatera3", "1", "hu",
       hu + "ASUS-X512FA-EJ099T-03-www.kelvor.hu.jpg"},
      {GENERATE_VATERA_23_KEPEK4, "vatera4", "1", "hu",
       hu + "ASUS-X512FA-EJ099T-04-www.kelvor.hu.jpg"},
      {GENERATE_HEUREKASK_IMGURL, "heureka", "1", "sk",
       sk + "ASUS-X512FA-EJ099T-01-www.kelvor.sk.jpg"},
      // Every "-01-" turns into "-02-", also one inside the type code.
      {GENERATE_HEUREKASK_IMGURL_ALTERNATIVE, "heureka alt", "6", "sk",
       sk + "O'NEIL-BP-02-X-02-www.kelvor.sk.jpg"},
      {GENERATE_ARUKERESO_IMAGE_URL, "arukereso", "99", "hu", hu},
  });
  EXPECT_EQ(out.text(), "");
}

}  // namespace
}  // namespace talmo::testing
