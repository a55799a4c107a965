// The XML converters at their edges: a table with only its header row, a value that XML would
// escape, and an export folder that is not there. Whole feeds are the golden catalogue's.
#include <gtest/gtest.h>

#include "core/errors.h"
#include "feeds/grando.h"
#include "feeds/heureka_sk.h"
#include "feeds/talmo.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

const std::string kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n";

TEST(Converters, HeaderOnlyTablesWriteTheBareFrameWithoutProgress) {
  TempDir dir;
  const std::string PATH = dir.path() + "/";
  write_file(PATH + "export/hu/.keep", "");
  write_file(PATH + "export/sk/.keep", "");
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
            kDeclaration + "<termeklista>\n</termeklista>\n");
  EXPECT_EQ(read_file(PATH + "export/hu/grando.xml"), kDeclaration + "<products>\n</products>\n");
  EXPECT_EQ(read_file(PATH + "export/sk/heureka.xml"), kDeclaration + "<SHOP>\n</SHOP>\n");
}

TEST(Converters, TalmoPriceIsWrittenUnescaped) {
  TempDir dir;
  const std::string PATH = dir.path() + "/";
  write_file(PATH + "export/hu/.keep", "");
  XmlFeedFile file(PATH + "export/hu/talmo.xml", talmo_layout());
  ColumnTable TALMOP;
  file.attach(TALMOP);
  GENERATE_TALMO_HEADER(TALMOP);
  add_item_row(TALMOP, {"a", "n", "d", "1 & <2>", "f", "l", "1 munkanap", "890"});
  CapturedStdout out;
  TALMO2XML(file, PATH);
  EXPECT_NE(read_file(PATH + "export/hu/talmo.xml").find("\t\t<ar>1 & <2></ar>\n"),
            std::string::npos);
}

TEST(Converters, MissingExportFolderFailsNamingTheFeedFile) {
  TempDir dir;
  const std::string PATH = dir.path() + "/nowhere/";
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
