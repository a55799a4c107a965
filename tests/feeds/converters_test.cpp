// The XML converters over hand-filled column tables: the frames, the element maps and the
// console lines the operators see.
#include <gtest/gtest.h>

#include "core/errors.h"
#include "feeds/grando.h"
#include "feeds/heureka_sk.h"
#include "feeds/talmo.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

class Converters : public ::testing::Test {
 protected:
  void SetUp() override {
    PATH = dir_.path() + "/";
    write_file(dir_.path() + "/export/hu/.keep", "");
    write_file(dir_.path() + "/export/sk/.keep", "");
  }

  TempDir dir_;
  std::string PATH;
};

TEST_F(Converters, TalmoWritesColumnsByNameAndTheFixedShippingLine) {
  XmlFeedFile file(PATH + "export/hu/talmo.xml", talmo_layout());
  ColumnTable TALMOP;
  file.attach(TALMOP);
  GENERATE_TALMO_HEADER(TALMOP);
  add_item_row(TALMOP, {"Asus K55", "Asus K55 - i5", "i5, 4GB", "123490", "https://x/a.jpg",
                        "https://x/p", "1 munkanap", "890"});
  add_item_row(TALMOP, {"", "", "", "1 & <2>", "", "", "1 munkanap", "890"});
  CapturedStdout out;
  TALMO2XML(file, PATH);
  EXPECT_EQ(out.text(), "Converting to XML:  50%\nConverting to XML: 100%\nSaving File: " + PATH +
                            "export/hu/talmo.xml\n");
  expect_same_text(
      "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
      "<termeklista>\n"
      "\t<termek>\n"
      "\t\t<cikkszam><![CDATA[Asus K55]]></cikkszam>\n"
      "\t\t<nev><![CDATA[Asus K55 - i5]]></nev>\n"
      "\t\t<leiras><![CDATA[i5, 4GB]]></leiras>\n"
      "\t\t<ar>123490</ar>\n"
      "\t\t<fotolink><![CDATA[https://x/a.jpg]]></fotolink>\n"
      "\t\t<termeklink><![CDATA[https://x/p]]></termeklink>\n"
      "\t\t<ido><![CDATA[1 munkanap]]></ido>\n"
      "\t\t<szallitas>890</szallitas>\n"
      "\t</termek>\n"
      "\t<termek>\n"
      "\t\t<cikkszam><![CDATA[]]></cikkszam>\n"
      "\t\t<nev><![CDATA[]]></nev>\n"
      "\t\t<leiras><![CDATA[]]></leiras>\n"
      "\t\t<ar>1 & <2></ar>\n"
      "\t\t<fotolink><![CDATA[]]></fotolink>\n"
      "\t\t<termeklink><![CDATA[]]></termeklink>\n"
      "\t\t<ido><![CDATA[1 munkanap]]></ido>\n"
      "\t\t<szallitas>890</szallitas>\n"
      "\t</termek>\n"
      "</termeklista>\n",
      read_file(PATH + "export/hu/talmo.xml"));
}

TEST_F(Converters, GrandoMapsWarrantiesToCodesAndPrintsNoSavingLine) {
  XmlFeedFile file(PATH + "export/hu/grando.xml", grando_layout());
  ColumnTable GRANDO;
  file.attach(GRANDO);
  GENERATE_GRANDO_HEADER(GRANDO);
  ASSERT_EQ(GRANDO.column_count, 10);
  for (const std::string warranty : {"24 hónap", "", "12 hónap"})
    add_item_row(GRANDO, {"n", "p", "1", "d", "l", "2", warranty, "m", "i", "c"});
  CapturedStdout out;
  GRANDO2XML(file);
  EXPECT_EQ(out.text(),
            "Converting to XML:  33%\nConverting to XML:  67%\nConverting to XML: 100%\n");
  std::string expected = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<products>\n";
  for (const char* code : {"8", "9", "7"}) {
    expected += std::string(
                    "\t<product>\n"
                    "\t\t<name><![CDATA[n]]></name>\n"
                    "\t\t<product_id><![CDATA[p]]></product_id>\n"
                    "\t\t<price><![CDATA[1]]></price>\n"
                    "\t\t<description><![CDATA[d]]></description>\n"
                    "\t\t<page_link><![CDATA[l]]></page_link>\n"
                    "\t\t<discount_price><![CDATA[2]]></discount_price>\n"
                    "\t\t<warrantyf><![CDATA[") +
                code +
                "]]></warrantyf>\n"
                "\t\t<manufacturer><![CDATA[m]]></manufacturer>\n"
                "\t\t<image_url><![CDATA[i]]></image_url>\n"
                "\t\t<category><![CDATA[c]]></category>\n"
                "\t\t<status><![CDATA[1]]></status>\n"
                "\t</product>\n";
  }
  expect_same_text(expected + "</products>\n", read_file(PATH + "export/hu/grando.xml"));
}

TEST_F(Converters, HeurekaKeepsDeliveryDateEmptyAndParamsUnescaped) {
  XmlFeedFile file(PATH + "export/sk/heureka.xml", heureka_layout());
  ColumnTable HEUREKASK;
  file.attach(HEUREKASK);
  GENERATE_HEUREKASK_HEADER(HEUREKASK);
  ASSERT_EQ(HEUREKASK.column_count, 14);
  add_item_row(HEUREKASK, {"1-a", "Asus K55", "Asus K55 - i5", "i5", "https://u", "https://i1",
                           "https://i2", "499,90", "<PARAM_NAME>x</PARAM_NAME>", "A&B",
                           "Heureka.sk | Tablet | A&B", "3", "<DELIVERY_ID>UPS</DELIVERY_ID>", ""});
  CapturedStdout out;
  HEUREKASK2XML(file, PATH);
  EXPECT_EQ(out.text(),
            "Converting to XML: 100%\nSaving Output File: " + PATH + "export/sk/heureka.xml\n");
  expect_same_text(
      "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
      "<SHOP>\n"
      "\t<SHOPITEM>\n"
      "\t\t<ITEM_ID><![CDATA[1-a]]></ITEM_ID>\n"
      "\t\t<PRODUCTNAME><![CDATA[Asus K55]]></PRODUCTNAME>\n"
      "\t\t<PRODUCT><![CDATA[Asus K55 - i5]]></PRODUCT>\n"
      "\t\t<DESCRIPTION><![CDATA[i5]]></DESCRIPTION>\n"
      "\t\t<URL><![CDATA[https://u]]></URL>\n"
      "\t\t<IMGURL><![CDATA[https://i1]]></IMGURL>\n"
      "\t\t<IMGURL_ALTERNATIVE><![CDATA[https://i2]]></IMGURL_ALTERNATIVE>\n"
      "\t\t<PRICE_VAT>499,90</PRICE_VAT>\n"
      "\t\t<PARAM><PARAM_NAME>x</PARAM_NAME></PARAM>\n"
      "\t\t<MANUFACTURER>A&B</MANUFACTURER>\n"
      "\t\t<CATEGORYTEXT><![CDATA[Heureka.sk | Tablet | A&B]]></CATEGORYTEXT>\n"
      "\t\t<DELIVERY_DATE></DELIVERY_DATE>\n"
      "\t\t<DELIVERY><DELIVERY_ID>UPS</DELIVERY_ID></DELIVERY>\n"
      "\t\t<EAN></EAN>\n"
      "\t</SHOPITEM>\n"
      "</SHOP>\n",
      read_file(PATH + "export/sk/heureka.xml"));
}

TEST_F(Converters, HeaderOnlyTablesWriteTheBareFrameWithoutProgress) {
  XmlFeedFile talmo(PATH + "export/hu/talmo.xml", talmo_layout());
  XmlFeedFile grando(PATH + "export/hu/grando.xml", grando_layout());
  XmlFeedFile heureka(PATH + "export/sk/heureka.xml", heureka_layout());
  CapturedStdout out;
  TALMO2XML(talmo, PATH);
  GRANDO2XML(grando);
  HEUREKASK2XML(heureka, PATH);
  EXPECT_EQ(out.text(), "Saving File: " + PATH + "export/hu/talmo.xml\nSaving Output File: " +
                            PATH + "export/sk/heureka.xml\n");
  EXPECT_EQ(read_file(PATH + "export/hu/talmo.xml"),
            "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<termeklista>\n</termeklista>\n");
  EXPECT_EQ(read_file(PATH + "export/hu/grando.xml"),
            "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<products>\n</products>\n");
}

TEST_F(Converters, MissingExportFolderFailsNamingTheFeedFile) {
  PATH = dir_.path() + "/nowhere/";
  // The temporary file cannot be made; that is reported at the save, not before.
  XmlFeedFile file(PATH + "export/sk/heureka.xml", heureka_layout());
  CapturedStdout out;
  try {
    HEUREKASK2XML(file, PATH);
    FAIL() << "saving into a missing folder must fail";
  } catch (const FileError& error) {
    EXPECT_EQ(std::string(error.what()),
              "Unable to create file \"" + PATH + "export/sk/heureka.xml\"");
  }
}

}  // namespace
}  // namespace talmo::testing
