#include "feeds/heureka_sk.h"

#include <algorithm>
#include <string_view>

#include "core/console.h"
#include "core/lookup.h"
#include "core/statements.h"
#include "core/system.h"
#include "description/short_description.h"
#include "feeds/arukereso.h"
#include "feeds/feed_loop.h"
#include "feeds/field_values.h"
#include "feeds/heureka_sk_params.h"
#include "feeds/talmo.h"
#include "product/categories.h"
#include "product/pricing.h"
#include "product/product_links.h"
#include "product/product_name.h"
#include "product/translation.h"

namespace talmo {
namespace {

const StringList kHeurekaColumns = {
    "ITEM_ID",      "PRODUCTNAME",        "PRODUCT",   "DESCRIPTION", "URL",
    "IMGURL",       "IMGURL_ALTERNATIVE", "PRICE_VAT", "PARAM",       "MANUFACTURER",
    "CATEGORYTEXT", "DELIVERY_DATE",      "DELIVERY",  "EAN"};
const StringList kCdataElements = {
    "ITEM_ID", "PRODUCTNAME",        "PRODUCT",     "DESCRIPTION", "URL",
    "IMGURL",  "IMGURL_ALTERNATIVE", "CATEGORYTEXT"};
// PARAM and DELIVERY carry ready-made XML, so nothing is escaped or wrapped.
const StringList kPlainElements = {"PRICE_VAT", "PARAM", "MANUFACTURER", "DELIVERY", "EAN"};

// Characters of a UTF-8 text: every byte but the continuation bytes (10xxxxxx) starts one, so a
// fixed price typed as "€" counts as one character, as the shop sees it.
std::size_t character_count(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

bool listed(const StringList& list, const std::string& name) {
  return std::find(list.begin(), list.end(), name) != list.end();
}

std::optional<std::string> heureka_element(const std::string& name, const std::string& value) {
  if (listed(kCdataElements, name)) {
    return "\t\t<" + name + "><![CDATA[" + value + "]]></" + name + ">";
  }
  if (listed(kPlainElements, name))
    return "\t\t<" + name + ">" + value + "</" + name + ">";
  // The delivery date always goes out empty, whatever the column holds.
  if (name == "DELIVERY_DATE")
    return "\t\t<DELIVERY_DATE></DELIVERY_DATE>";
  return std::nullopt;
}

const std::string kCategoryPath = "Heureka.sk | Elektronika | Počítače a kancelária | ";

struct CategoryLevel {
  const char* key;  // looked for in the upper-cased translated main category, upper-cased
  const char* level;
};

// Tested in order, the first hit wins; any other kind is named by its own translation.
constexpr CategoryLevel kCategoryLevels[] = {
    {"noteb", "Notebooky"},
    {"tablet", "Tablet"},
};

constexpr std::size_t kPriceColumn = 7;

}  // namespace

std::string GENERATE_HEUREKASK_ITEM_ID(Query& VAR_QUERY, const std::string& IDX,
                                       const std::string& SITE) {
  return replace_all(GENERATE_PRODUCT_SKU(VAR_QUERY, IDX, SITE), "/", "-");
}

std::string GENERATE_HEUREKASK_PRODUCTNAME(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE) {
  return GENERATE_TALMO_CIKKSZAM(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_HEUREKASK_PRODUCT(Query& VAR_QUERY, const std::string& IDX,
                                       const std::string& SITE) {
  std::string result;
  guard_lookup(VAR_QUERY, [&] {
    if (!open_lookup(VAR_QUERY,
                     statements::product_columns(
                         {"gyarto", "tipusmegnevezes", "extra_mezo", "kiegeszitok"}, IDX)))
      return;
    // Everything is read before the name generator and the translations reuse the cursor.
    const std::string GY = VAR_QUERY.field_text("gyarto");
    const std::string T = VAR_QUERY.field_text("tipusmegnevezes");
    const std::string EXTRA = VAR_QUERY.field_text("extra_mezo");
    std::string KIEG = trim(VAR_QUERY.field_text("kiegeszitok"));
    if (!KIEG.empty())
      KIEG = trim(replace_all(KIEG, ";", ","));
    result = GY + " " + T + " - " + TERMEKNEV_GENERATOR(VAR_QUERY, IDX, SITE);
    if (!KIEG.empty())
      result += " " + GETTRANSLATION(VAR_QUERY, KIEG, SITE);
    if (!EXTRA.empty())
      result += " " + GETTRANSLATION(VAR_QUERY, EXTRA, SITE);
  });
  return result;
}

std::string GENERATE_HEUREKASK_PRICE_VAT(Query& VAR_QUERY, const std::string& IDX,
                                         const std::string& SITE) {
  return GENERATE_PRICE_WITH_TAX(VAR_QUERY, IDX, SITE, true, false);
}

std::string GENERATE_HEUREKASK_MANUFACTURER(Query& VAR_QUERY, const std::string& IDX,
                                            const std::string& SITE) {
  return GENERATE_ARUKERESO_MANUFACTURER(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_HEUREKASK_CATEGORYTEXT(Query& VAR_QUERY, const std::string& IDX,
                                            const std::string& SITE) {
  const std::string M = GENERATE_ARUKERESO_MANUFACTURER(VAR_QUERY, IDX, SITE);
  const std::string C = GETTRANSLATION(VAR_QUERY, GETMAINCATEGORY(VAR_QUERY, IDX), SITE);
  const std::string upper_c = upper_ascii(C);
  for (const CategoryLevel& entry : kCategoryLevels) {
    if (contains(upper_c, upper_ascii(entry.key)))
      return kCategoryPath + entry.level + " | " + M;
  }
  return kCategoryPath + C + " | " + M;
}

std::string GENERATE_HEUREKASK_DELIVERY_DATE(Query&, const std::string&, const std::string&) {
  return "3";
}

std::string GENERATE_HEUREKASK_DELIVERY(Query&, const std::string&, const std::string&) {
  return "<DELIVERY_ID>UPS</DELIVERY_ID><DELIVERY_PRICE>4,40</DELIVERY_PRICE>"
         "<DELIVERY_COD>4,40</DELIVERY_COD>";
}

std::string GENERATE_HEUREKASK_EAN(Query&, const std::string&, const std::string&) {
  return "";
}

std::string GENERATE_HEUREKASK_VAT(Query&, const std::string&, const std::string&) {
  return "0,20";
}

std::string heureka_price_decimals(const std::string& price) {
  const std::size_t point = price.find('.');
  const std::string_view decimals = point == std::string::npos
                                        ? std::string_view(price)
                                        : std::string_view(price).substr(point + 1);
  return replace_all(character_count(decimals) == 1 ? price + "0" : price, ".", ",");
}

std::string GENERATE_HEUREKASK_LINE(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE, ColumnTable& HEUREKASK) {
  StringList values = field_values(
      {GENERATE_HEUREKASK_ITEM_ID, GENERATE_HEUREKASK_PRODUCTNAME, GENERATE_HEUREKASK_PRODUCT,
       GENERATE_HEUREKASK_DESCRIPTION, GENERATE_HEUREKASK_URL, GENERATE_HEUREKASK_IMGURL,
       GENERATE_HEUREKASK_IMGURL_ALTERNATIVE, GENERATE_HEUREKASK_PRICE_VAT,
       GENERATE_HEUREKASK_PARAM, GENERATE_HEUREKASK_MANUFACTURER, GENERATE_HEUREKASK_CATEGORYTEXT,
       GENERATE_HEUREKASK_DELIVERY_DATE, GENERATE_HEUREKASK_DELIVERY, GENERATE_HEUREKASK_EAN},
      VAR_QUERY, IDX, SITE);
  values[kPriceColumn] = heureka_price_decimals(values[kPriceColumn]);
  add_item_row(HEUREKASK, values);
  return "";
}

void GENERATE_HEUREKASK_HEADER(ColumnTable& HEUREKASK) {
  add_header_row(HEUREKASK, kHeurekaColumns);
}

XmlLayout heureka_layout() {
  return XmlLayout{
      {"<?xml version=\"1.0\" encoding=\"UTF-8\" ?>", "<SHOP>"},
      "\t<SHOPITEM>",
      heureka_element,
      {"\t</SHOPITEM>"},
      "</SHOP>",
  };
}

void HEUREKASK2XML(XmlFeedFile& file, const std::string& PATH) {
  file.finish_items();
  write_line("Saving Output File: " + PATH + "export/sk/heureka.xml");
  file.commit();
}

void GENERATE_HEUREKA_SK(Query& VAR_QUERY, StringList& list, const std::string& SITE,
                         const std::string& PATH) {
  if (list.empty())
    return;
  const std::int64_t start = clock_milliseconds();
  XmlFeedFile file(PATH + "export/sk/" + "heureka.xml", heureka_layout());
  ColumnTable HEUREKASK;
  file.attach(HEUREKASK);
  GENERATE_HEUREKASK_HEADER(HEUREKASK);
  drop_unpublished(VAR_QUERY, list, "Product with id: ");
  walk_items(
      VAR_QUERY, list, SITE, "% :: EXPORT :: Progress windows (Type: HEUREKA.SK :: Site: ", start,
      false,
      [&](const std::string& IDX) { GENERATE_HEUREKASK_LINE(VAR_QUERY, IDX, SITE, HEUREKASK); });
  HEUREKASK2XML(file, PATH);
}

}  // namespace talmo
