#include "feeds/heureka_sk.h"

#include <algorithm>

#include "app/column_table.h"
#include "app/console.h"
#include "app/file_output.h"
#include "app/run_state.h"

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

}  // namespace

void GENERATE_HEUREKASK_HEADER() {
  add_header_row(HEUREKASK, HEUREKASK_DB, kHeurekaColumns);
}

void HEUREKASK2XML() {
  const XmlLayout layout{
      {"<?xml version=\"1.0\" encoding=\"UTF-8\" ?>", "<SHOP>"},
      "\t<SHOPITEM>",
      heureka_element,
      {"\t</SHOPITEM>"},
      "</SHOP>",
  };
  const StringList lines = convert_table_to_xml(HEUREKASK, layout);
  write_line("Saving Output File: " + PATH + "export/sk/heureka.xml");
  save_lines(PATH + "export/sk/" + "heureka.xml", lines);
}

}  // namespace talmo
