#include "feeds/arukereso.h"

#include "app/strings.h"
#include "app/text_utils.h"

namespace talmo {
namespace {

const StringList kArukeresoColumns = {
    "manufacturer", "name",        "category",    "product_url",   "price",         "image_url",
    "image_url_2",  "image_url_3", "description", "delivery_time", "product_number"};

}  // namespace

std::string GENERATE_ARUKERESO_HEADER() {
  std::string line;
  for (const std::string& column : kArukeresoColumns) {
    if (!line.empty())
      line += ",";
    line += ADDTEXTDELIMITER2(column);
  }
  return line;
}

}  // namespace talmo
