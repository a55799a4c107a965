#include "feeds/arukereso.h"

#include "core/file_output.h"
#include "core/lookup.h"
#include "core/statements.h"
#include "core/strings.h"
#include "core/system.h"
#include "core/text_utils.h"
#include "description/long_description.h"
#include "feeds/feed_loop.h"
#include "feeds/field_values.h"
#include "product/pricing.h"
#include "product/product_links.h"
#include "product/product_name.h"

namespace talmo {
namespace {

const StringList kArukeresoColumns = {
    "manufacturer", "name",        "category",    "product_url",   "price",         "image_url",
    "image_url_2",  "image_url_3", "description", "delivery_time", "product_number"};

// The second and third photos sit beside the first under the same name, "-01-" numbered on.
std::string GENERATE_ARUKERESO_IMAGE_URL_2(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE) {
  return replace_all_ci(GENERATE_ARUKERESO_IMAGE_URL(VAR_QUERY, IDX, SITE), "-01-", "-02-");
}

std::string GENERATE_ARUKERESO_IMAGE_URL_3(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE) {
  return replace_all_ci(GENERATE_ARUKERESO_IMAGE_URL(VAR_QUERY, IDX, SITE), "-01-", "-03-");
}

std::string csv_line(const StringList& fields) {
  std::string line;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0)
      line += ",";
    line += ADDTEXTDELIMITER2(fields[i]);
  }
  return line;
}

}  // namespace

std::string GENERATE_ARUKERESO_MANUFACTURER(Query& VAR_QUERY, const std::string& IDX,
                                            const std::string&) {
  return trim(lookup_text(VAR_QUERY, statements::product_columns({"gyarto"}, IDX), "gyarto"));
}

std::string GENERATE_ARUKERESO_CATEGORY(Query&, const std::string&, const std::string&) {
  return "Főoldal>Számítógép>Notebook";
}

std::string GENERATE_ARUKERESO_PRICE(Query& VAR_QUERY, const std::string& IDX,
                                     const std::string& SITE) {
  return GENERATE_PRICE_WITH_TAX(VAR_QUERY, IDX, SITE, true, false);
}

std::string GENERATE_ARUKERESO_DELIVERY_TIME(Query&, const std::string&, const std::string&) {
  return "1";
}

std::string GENERATE_ARUKERESO_DELIVERY_COST(Query&, const std::string&, const std::string&) {
  return "890";
}

std::string GENERATE_ARUKERESO_PRODUCT_NUMBER(Query& VAR_QUERY, const std::string& IDX,
                                              const std::string&) {
  return lookup_text(VAR_QUERY, statements::product_columns({"product_number"}, IDX),
                     "product_number");
}

std::string GENERATE_ARUKERESO_HEADER() {
  return csv_line(kArukeresoColumns);
}

std::string GENERATE_ARUKERESO_LINE(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE) {
  return csv_line(field_values(
      {GENERATE_ARUKERESO_MANUFACTURER, GENERATE_ARUKERESO_NAME, GENERATE_ARUKERESO_CATEGORY,
       GENERATE_ARUKERESO_PRODUCT_URL, GENERATE_ARUKERESO_PRICE, GENERATE_ARUKERESO_IMAGE_URL,
       GENERATE_ARUKERESO_IMAGE_URL_2, GENERATE_ARUKERESO_IMAGE_URL_3,
       GENERATE_ARUKERESO_DESCRIPTION, GENERATE_ARUKERESO_DELIVERY_TIME,
       GENERATE_ARUKERESO_PRODUCT_NUMBER},
      VAR_QUERY, IDX, SITE));
}

void GENERATE_ARUKERESO(Query& VAR_QUERY, StringList& list, const std::string& SITE,
                        const std::string& PATH) {
  if (list.empty())
    return;
  const std::int64_t start = clock_milliseconds();
  ReplacingFile file(csv_path(PATH, SITE, "arukereso.csv"));
  file.write_line(GENERATE_ARUKERESO_HEADER());
  drop_unpublished(VAR_QUERY, list, "Product with id: ");
  walk_items(VAR_QUERY, list, SITE, "% :: EXPORT :: (Type: ARUKERESO :: Site: ", start, true,
             [&](const std::string& IDX) {
               file.write_line(GENERATE_ARUKERESO_LINE(VAR_QUERY, IDX, SITE));
             });
  file.commit();
}

}  // namespace talmo
