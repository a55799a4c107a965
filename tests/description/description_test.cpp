// Long descriptions of products of the golden catalogue, compared whole with the HTML files in
// tests/description/expected/: the marketplace form the Hungarian feeds carry and, for one
// product, the raw sections on the Slovak site; and the restyling of stored inline styles.
#include <gtest/gtest.h>

#include <cstdint>

#include "core/database.h"
#include "core/statements.h"
#include "description/description_frame.h"
#include "description/long_description.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

using Description = std::string (*)(Query&, const std::string&, const std::string&);

class LongDescription : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { PrivateMariaDb::instance().load_golden_catalogue(); }
  void SetUp() override { TALMO_NEEDS_DEFAULT_SITE(); }

  DbSession plain_;
};

TEST_F(LongDescription, FixtureProductsAsTheShopShowsThem) {
  const Description marketplace = GENERATE_ARUKERESO_DESCRIPTION;
  struct Case {
    Description describe;
    std::string id, site, file;
  };
  for (const Case& c : std::vector<Case>{
           {marketplace, "10", "hu", "marketplace_10.html"},  // every section, icons, articles
           // Extra texts, two operating systems, a battery without cells, a "van" in the WiFi.
           {marketplace, "12", "hu", "marketplace_12.html"},
           {marketplace, "13", "hu", "marketplace_13.html"},  // AMD, Radeon, VGA and 3G lines
           // Unreadable values: each failing section keeps what it built before the failure.
           {marketplace, "4", "hu", "marketplace_4.html"},
           // The Slovak row frame and words, inline styles and toggle scripts, no articles.
           {GENERATELEIRAS, "10", "sk", "raw_10_sk.html"},
       }) {
    SCOPED_TRACE(c.file);
    CapturedStdout out;
    const std::string html = c.describe(plain_.query, c.id, c.site);
    expect_same_text(read_file(source_path("tests/description/expected/" + c.file)), html);
  }
}

// Inside the run's snapshot Árukereső, Grando and Vatera share one building of a product's
// marketplace description: a later call prints the lines the building printed (product 4's
// failing sections) and leaves the cursor on the same statement, without asking the database.
TEST_F(LongDescription, InsideTheSnapshotBuiltOnceAndRepeatedAlike) {
  DbSession in_snapshot;
  Transaction transaction(in_snapshot.connection);
  transaction.start();
  for (const std::string id : {"4", "10"}) {
    SCOPED_TRACE(id);
    CapturedStdout expected_out;
    const std::string expected = GENERATE_ARUKERESO_DESCRIPTION(plain_.query, id, "hu");
    const std::string expected_lines = expected_out.text();
    EXPECT_EQ(expected_lines.empty(), id == "10");
    for (int use = 1; use <= 3; ++use) {
      in_snapshot.query.set_statement(statements::product_ids());  // as the next lookup leaves it
      const std::uint64_t sent = in_snapshot.connection.statements_sent();
      CapturedStdout out;
      EXPECT_EQ(GENERATE_ARUKERESO_DESCRIPTION(in_snapshot.query, id, "hu"), expected) << use;
      EXPECT_EQ(out.text(), expected_lines) << use;
      EXPECT_EQ(in_snapshot.query.statement(), plain_.query.statement()) << use;
      if (use > 1) {
        EXPECT_EQ(in_snapshot.connection.statements_sent(), sent) << use;
      }
    }
  }
}

// Restyling ignores letter case: stored texts may carry the shop's inline styles in capitals.
TEST(DescriptionFrame, RestyleIgnoresLetterCase) {
  struct Case {
    std::string raw, restyled;
  };
  for (const Case& c : std::vector<Case>{
           {"<P STYLE=\"FONT-SIZE: 12PX; LINE-HEIGHT: 15PX; MARGIN-LEFT: 5PX; FONT-FAMILY: "
            "'FEDERO', ARIAL, SANS-SERIF;\">x",
            "<p id=\"item_detail_text\">x"},
           {"a<SCRIPT TYPE=\"TEXT/JAVASCRIPT\">\r<!--\r  FUNCTION SHOW_ITEM(ID) {\r    VAR E = "
            "DOCUMENT.GETELEMENTBYID(ID);\r    IF (E.STYLE.DISPLAY == 'BLOCK')\r      "
            "E.STYLE.DISPLAY = 'NONE';\r    ELSE\r      E.STYLE.DISPLAY = 'BLOCK';\r  }\r//-->\r"
            "</SCRIPT>b",
            "ab"},
           {"<p style=\"color: red;\">x</p>", "<p style=\"color: red;\">x</p>"},  // not the shop's
       }) {
    EXPECT_EQ(restyle_description(c.raw), c.restyled) << c.raw;
  }
}

}  // namespace
}  // namespace talmo::testing
