#include "feeds/grando.h"

#include "app/column_table.h"
#include "app/file_output.h"
#include "app/run_state.h"
#include "app/strings.h"

namespace talmo {
namespace {

const StringList kGrandoColumns = {"name",      "product_id",     "price",     "description",
                                   "page_link", "discount_price", "warrantyf", "manufacturer",
                                   "image_url", "category"};

// Grando's warranty codes: 7 for twelve months, 8 for twenty-four, 9 for anything else. A plain
// substring test, so "120" counts as twelve.
std::string grando_warranty_code(const std::string& warranty) {
  if (contains(warranty, "12"))
    return "7";
  if (contains(warranty, "24"))
    return "8";
  return "9";
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

void GENERATE_GRANDO_HEADER() {
  add_header_row(GRANDO, GRANDO_DB, kGrandoColumns);
}

void GRANDO2XML() {
  const XmlLayout layout{
      {"<?xml version=\"1.0\" encoding=\"UTF-8\" ?>", "<products>"}, "\t<product>", grando_element,
      {"\t\t<status><![CDATA[1]]></status>", "\t</product>"},        "</products>",
  };
  save_lines(PATH + "export/hu/" + "grando.xml", convert_table_to_xml(GRANDO, layout));
}

}  // namespace talmo
