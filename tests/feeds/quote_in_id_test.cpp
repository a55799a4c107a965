// The fields of the five feeds run over the golden catalogue with a quote in the product id
// ("1'"), which breaks each statement the id goes into: the error lines each field prints and
// the default it gives, in column order, compared whole with tests/feeds/expected/quote_in_id.txt.
#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "description/long_description.h"
#include "description/short_description.h"
#include "feeds/arukereso.h"
#include "feeds/grando.h"
#include "feeds/heureka_sk.h"
#include "feeds/heureka_sk_params.h"
#include "feeds/talmo.h"
#include "feeds/vatera.h"
#include "product/product_links.h"
#include "product/product_name.h"
#include "product/published.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

using Field = std::string (*)(Query&, const std::string&, const std::string&);

std::string published(Query& query, const std::string& idx, const std::string&) {
  return PRODUCTPUBLISHED(query, idx) ? "true" : "false";
}
std::string only_for_grando(Query& query, const std::string& idx, const std::string&) {
  return ISONLYFORGRANDO(query, idx) ? "true" : "false";
}

#define FIELD(name, site) \
  { #name, name, site }

TEST(QuoteInId, EveryFieldPrintsItsErrorLinesAndGivesItsDefault) {
  TALMO_NEEDS_DEFAULT_SITE();
  DbSession db;
  db.server.load_golden_catalogue();
  const std::vector<std::tuple<const char*, Field, const char*>> fields = {
      FIELD(published, "hu"),
      FIELD(only_for_grando, "hu"),
      FIELD(GENERATE_TALMO_CIKKSZAM, "hu"),
      FIELD(GENERATE_TALMO_TERMEKNEV, "hu"),
      FIELD(GENERATE_TALMO_TERMEKLEIRAS_SHORT, "hu"),
      FIELD(GENERATE_TALMO_BRUTTO_AR, "hu"),
      FIELD(GENERATE_TALMO_FOTOLINK, "hu"),
      FIELD(GENERATE_TALMO_TERMEKLINK, "hu"),
      FIELD(GENERATE_ARUKERESO_MANUFACTURER, "hu"),
      FIELD(GENERATE_ARUKERESO_NAME, "hu"),
      FIELD(GENERATE_ARUKERESO_PRODUCT_URL, "hu"),
      FIELD(GENERATE_ARUKERESO_PRICE, "hu"),
      FIELD(GENERATE_ARUKERESO_IMAGE_URL, "hu"),
      FIELD(GENERATE_ARUKERESO_DESCRIPTION, "hu"),
      FIELD(GENERATE_ARUKERESO_PRODUCT_NUMBER, "hu"),
      FIELD(GENERATE_GRANDO_NAME, "hu"),
      FIELD(GENERATE_GRANDO_PRODUCT_ID, "hu"),
      FIELD(GENERATE_GRANDO_PRICE, "hu"),
      FIELD(GENERATE_GRANDO_PAGE_LINK, "hu"),
      FIELD(GENERATE_GRANDO_DISCOUNT_PRICE, "hu"),
      FIELD(GENERATE_GRANDO_WARRANTYF, "hu"),
      FIELD(GENERATE_GRANDO_IMAGE_URL, "hu"),
      FIELD(GENERATE_GRANDO_CATEGORY, "hu"),
      FIELD(GENERATE_VATERA_05_KIKIALTASI_AR, "hu"),
      FIELD(GENERATE_VATERA_18_GARANCIA, "hu"),
      FIELD(GENERATE_VATERA_21_KEPEK2, "hu"),
      FIELD(GENERATE_VATERA_25_SAJAT_TERMEK_AZONOSITO, "hu"),
      FIELD(GENERATE_HEUREKASK_ITEM_ID, "sk"),
      FIELD(GENERATE_HEUREKASK_PRODUCTNAME, "sk"),
      FIELD(GENERATE_HEUREKASK_PRODUCT, "sk"),
      FIELD(GENERATE_HEUREKASK_DESCRIPTION, "sk"),
      FIELD(GENERATE_HEUREKASK_URL, "sk"),
      FIELD(GENERATE_HEUREKASK_IMGURL_ALTERNATIVE, "sk"),
      FIELD(GENERATE_HEUREKASK_PRICE_VAT, "sk"),
      FIELD(GENERATE_HEUREKASK_PARAM, "sk"),
      FIELD(GENERATE_HEUREKASK_CATEGORYTEXT, "sk")};
  std::string console;
  for (const auto& [name, field, site] : fields) {
    CapturedStdout out;
    const std::string value = field(db.query, "1'", site);
    console += "== " + std::string(name) + " (" + site + ")\n" + out.text() + "-> " + value + "\n";
  }
  expect_same_text(read_file(source_path("tests/feeds/expected/quote_in_id.txt")), console);
}

}  // namespace
}  // namespace talmo::testing
