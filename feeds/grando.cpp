#include "feeds/grando.h"

#include <cstddef>
#include <cstdint>
#include <optional>

#include "core/lookup.h"
#include "core/statements.h"
#include "core/strings.h"
#include "core/system.h"
#include "description/long_description.h"
#include "feeds/arukereso.h"
#include "feeds/feed_loop.h"
#include "feeds/field_values.h"
#include "feeds/grando_categories.h"
#include "product/categories.h"
#include "product/price_rounding.h"
#include "product/pricing.h"
#include "product/product_links.h"
#include "product/product_name.h"
#include "product/published.h"

namespace talmo {
namespace {

const StringList kGrandoColumns = {"name",      "product_id",     "price",     "description",
                                   "page_link", "discount_price", "warrantyf", "manufacturer",
                                   "image_url", "category"};
constexpr std::size_t kPriceColumn = 2;
constexpr std::size_t kDiscountPriceColumn = 5;

// The kind suffix of a Grando name: Grando files every laptop as a notebook unless it is an
// ultrabook; tablets and all-in-ones keep the shop's own category name.
std::string GETUTOTAG(const std::string& BE, bool ULTRA) {
  if (ULTRA)
    return "LAPTOP, ULTRABOOK";
  if (contains(upper_ascii(BE), "LAPTOP"))
    return "LAPTOP, NOTEBOOK";
  return BE;
}

// Whether the product is filed under the shop's level-0 "Ultrabook" category. A shop without
// that category is not asked about the product at all.
bool in_ultrabook_category(Query& VAR_QUERY, const std::string& IDX) {
  const std::string ULTRA_ID = GETCATEGORYIDFROMNAMEANDLEVEL(VAR_QUERY, "Ultrabook", "0");
  bool ULTRA = false;
  if (ULTRA_ID == "-1")
    return ULTRA;
  guard_lookup(VAR_QUERY, [&] {
    ULTRA = open_lookup(VAR_QUERY, statements::product_in_category(IDX, ULTRA_ID));
  });
  return ULTRA;
}

// Grando shows the higher of the two prices as the list price; a price that is not a whole
// number leaves both as they are.
void apply_price_rule(std::string& price, const std::string& discount_price) {
  const std::optional<std::int32_t> discount = parse_integer(discount_price);
  const std::optional<std::int32_t> list = parse_integer(price);
  if (discount && list && *discount > *list)
    price = discount_price;
}

std::optional<std::string> grando_element(const std::string& name, const std::string& value) {
  if (name == "warrantyf") {
    return "\t\t<warrantyf><![CDATA[" + grando_warranty_code(value) + "]]></warrantyf>";
  }
  for (const std::string& column : kGrandoColumns) {
    if (name == column)
      return "\t\t<" + name + "><![CDATA[" + value + "]]></" + name + ">";
  }
  return std::nullopt;
}

}  // namespace

std::string GENERATE_GRANDO_NAME(Query& VAR_QUERY, const std::string& IDX,
                                 const std::string& SITE) {
  const bool ULTRA = in_ultrabook_category(VAR_QUERY, IDX);
  const std::string UTOTAG = GETUTOTAG(GETMAINCATEGORY(VAR_QUERY, IDX), ULTRA);
  const std::string TNEV = TERMEKNEV_GENERATOR(VAR_QUERY, IDX, SITE);
  std::string GY;
  std::string N;
  guard_lookup(VAR_QUERY, [&] {
    if (open_lookup(VAR_QUERY, statements::product_columns({"gyarto", "nev"}, IDX))) {
      GY = VAR_QUERY.field_text("gyarto");
      N = VAR_QUERY.field_text("nev");
    }
  });
  return GY + " " + N + " - " + TNEV + " " + UTOTAG;
}

std::string GENERATE_GRANDO_PRODUCT_ID(Query& VAR_QUERY, const std::string& IDX,
                                       const std::string& SITE) {
  if (ISONLYFORGRANDO(VAR_QUERY, IDX)) {
    return lookup_text(VAR_QUERY, statements::product_columns({"sorszam"}, IDX), "sorszam");
  }
  return GENERATE_PRODUCT_SKU(VAR_QUERY, IDX, SITE) + " " + "LAPTOP, NOTEBOOK";
}

std::string GENERATE_GRANDO_ADDPERCENT(std::int32_t PERCENT, const std::string& OSSZEG) {
  const std::optional<std::int32_t> amount = parse_integer(OSSZEG);
  if (!amount)
    return OSSZEG;
  // Any 32-bit amount raised by any 32-bit percent fits a 64-bit integer.
  const auto raised = static_cast<std::int64_t>(round_half_even((PERCENT / 100.0 + 1.0) * *amount));
  std::string result = std::to_string(raised);
  const std::size_t figures = result.size() - (raised < 0 ? 1 : 0);
  if (figures >= 2)
    result.replace(result.size() - 2, 2, "90");
  return result;
}

std::string GENERATE_GRANDO_PRICE(Query& VAR_QUERY, const std::string& IDX,
                                  const std::string& SITE) {
  return GENERATE_GRANDO_ADDPERCENT(4, GENERATE_PRICE_WITH_TAX(VAR_QUERY, IDX, SITE, false, true));
}

std::string GENERATE_GRANDO_DISCOUNT_PRICE(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE) {
  return GENERATE_GRANDO_ADDPERCENT(4, GENERATE_PRICE_WITH_TAX(VAR_QUERY, IDX, SITE, true, false));
}

std::string GENERATE_GRANDO_DESCRIPTION(Query& VAR_QUERY, const std::string& IDX,
                                        const std::string& SITE) {
  return GENERATE_ARUKERESO_DESCRIPTION(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_GRANDO_WARRANTYF(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string&) {
  return trim(lookup_text(VAR_QUERY, statements::product_columns({"garancia"}, IDX), "garancia"));
}

std::string GENERATE_GRANDO_MANUFACTURER(Query& VAR_QUERY, const std::string& IDX,
                                         const std::string& SITE) {
  return GENERATE_ARUKERESO_MANUFACTURER(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_GRANDO_CATEGORY(Query& VAR_QUERY, const std::string& IDX, const std::string&) {
  bool found = false;
  std::string manufacturer;
  guard_lookup(VAR_QUERY, [&] {
    if (open_lookup(VAR_QUERY, statements::product_columns({"gyarto"}, IDX))) {
      manufacturer = trim(VAR_QUERY.field_text("gyarto"));
      found = true;
    }
  });
  if (!found)
    return "";
  // Each lookup reuses the cursor, so they run one after another once `gyarto` is read.
  const std::string series = GETTHIRDCATEGORY(VAR_QUERY, IDX);
  const std::string main_kind = GETMAINCATEGORY(VAR_QUERY, IDX);
  const std::string second_kind = GETSECONDMAINCATEGORY(VAR_QUERY, IDX);
  return GET_CATEGORY_NUMBER(manufacturer, series, main_kind, second_kind);
}

std::string grando_warranty_code(const std::string& warranty) {
  if (contains(warranty, "12"))
    return "7";
  if (contains(warranty, "24"))
    return "8";
  return "9";
}

void GENERATE_GRANDO_HEADER(ColumnTable& GRANDO) {
  add_header_row(GRANDO, kGrandoColumns);
}

std::string GENERATE_GRANDO_LINE(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE,
                                 ColumnTable& GRANDO) {
  StringList values = field_values(
      {GENERATE_GRANDO_NAME, GENERATE_GRANDO_PRODUCT_ID, GENERATE_GRANDO_PRICE,
       GENERATE_GRANDO_DESCRIPTION, GENERATE_GRANDO_PAGE_LINK, GENERATE_GRANDO_DISCOUNT_PRICE,
       GENERATE_GRANDO_WARRANTYF, GENERATE_GRANDO_MANUFACTURER, GENERATE_GRANDO_IMAGE_URL,
       GENERATE_GRANDO_CATEGORY},
      VAR_QUERY, IDX, SITE);
  apply_price_rule(values[kPriceColumn], values[kDiscountPriceColumn]);
  add_item_row(GRANDO, values);
  return "";
}

XmlLayout grando_layout() {
  return XmlLayout{
      {"<?xml version=\"1.0\" encoding=\"UTF-8\" ?>", "<products>"}, "\t<product>", grando_element,
      {"\t\t<status><![CDATA[1]]></status>", "\t</product>"},        "</products>",
  };
}

void GRANDO2XML(XmlFeedFile& file) {
  file.finish_items();
  file.commit();
}

void GENERATE_GRANDO(Query& VAR_QUERY, StringList& list, const std::string& SITE,
                     const std::string& PATH) {
  if (list.empty())
    return;
  XmlFeedFile file(PATH + "export/hu/" + "grando.xml", grando_layout());
  ColumnTable GRANDO;
  file.attach(GRANDO);
  GENERATE_GRANDO_HEADER(GRANDO);
  drop_unpublished(VAR_QUERY, list, "Product with id: ");
  const std::int64_t start = clock_milliseconds();
  // Clearance items stay in: Grando is the feed that carries them.
  walk_items(VAR_QUERY, list, SITE, "% :: EXPORT :: (Type: GRANDO :: Site: ", start, false,
             [&](const std::string& IDX) { GENERATE_GRANDO_LINE(VAR_QUERY, IDX, SITE, GRANDO); });
  GRANDO2XML(file);
}

}  // namespace talmo
