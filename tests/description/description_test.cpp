// Long descriptions of products of the golden catalogue, compared whole with the HTML files in
// tests/description/expected/: the marketplace form the Hungarian feeds carry and, for one
// product, the raw sections on the Slovak site.
#include <gtest/gtest.h>

#include "description/long_description.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

using Description = std::string (*)(Query&, const std::string&, const std::string&);

TEST(LongDescription, FixtureProductsAsTheShopShowsThem) {
  TALMO_NEEDS_DEFAULT_SITE();
  DbSession db;
  db.server.reset_database();
  db.server.run_sql_file(source_path("tests/e2e/fixtures/catalogue.sql"));
  struct Case {
    Description describe;
    std::string id, site, file;
  };
  for (const Case& c : std::vector<Case>{
           // Every section filled: both disk and card tables, icons, articles.
           {GENERATE_ARUKERESO_DESCRIPTION, "10", "hu", "marketplace_10.html"},
           // Extra texts, two operating systems, a battery without cells, a "van" in the WiFi.
           {GENERATE_ARUKERESO_DESCRIPTION, "12", "hu", "marketplace_12.html"},
           // AMD and Radeon icons, VGA and 3G lines.
           {GENERATE_ARUKERESO_DESCRIPTION, "13", "hu", "marketplace_13.html"},
           // Unreadable values: each failing section keeps what it built before the failure.
           {GENERATE_ARUKERESO_DESCRIPTION, "4", "hu", "marketplace_4.html"},
           // The Slovak row frame and words, inline styles and toggle scripts, no articles.
           {GENERATELEIRAS, "10", "sk", "raw_10_sk.html"},
       }) {
    SCOPED_TRACE(c.file);
    CapturedStdout out;
    const std::string html = c.describe(db.query, c.id, c.site);
    expect_same_text(read_file(source_path("tests/description/expected/" + c.file)), html);
  }
}

}  // namespace
}  // namespace talmo::testing
