// The item rules that need more than one value at a time: Vatera's columns, Heureka's id and
// category path, Árukereső's header.
#include "feedcheck/item_checker.h"

#include <gtest/gtest.h>

namespace talmo::feedcheck {
namespace {

// The findings of one item as "kind field: what", joined by " / ", and its key and price.
struct Checked {
  std::string findings;
  std::string key;
  std::string price;
};

Checked check(ItemChecker& checker, const FeedItem& item) {
  std::vector<Finding> findings;
  const CheckedItem checked = checker.check(item, findings);
  Checked result{"", checked.key, checked.price};
  for (const Finding& finding : findings) {
    result.findings += (result.findings.empty() ? "" : " / ") + std::string(kind_id(finding.kind)) +
                       " " + finding.field + ": " + finding.what;
  }
  return result;
}

// A Vatera record as the export writes it, with column `column` (from 1) replaced by `value`.
std::string vatera_record(std::size_t column = 0, const std::string& value = "") {
  std::vector<std::string> fields = {"7937228",
                                     "Lenovo U310 LAPTOP, NOTEBOOK",
                                     "",
                                     "5",
                                     "282290",
                                     "282290",
                                     "282290",
                                     "0",
                                     "0",
                                     "1",
                                     "9633",
                                     "1",
                                     "506",
                                     "11399747",
                                     "1",
                                     "0",
                                     "664",
                                     "7",
                                     "",
                                     "https://k.hu/1.jpg",
                                     "https://k.hu/2.jpg",
                                     "https://k.hu/3.jpg",
                                     "https://k.hu/4.jpg",
                                     "0",
                                     "11250/Lenovo",
                                     "",
                                     "",
                                     "",
                                     "",
                                     "",
                                     "<p>a; b</p>"};
  if (column > 0)
    fields[column - 1] = value;
  std::string record;
  for (const std::string& field : fields)
    record += (record.empty() ? "" : ";") + field;
  return record;
}

TEST(VateraChecker, EachColumnHoldsWhatItMust) {
  const struct {
    std::size_t column;
    const char* value;
    const char* findings;
  } cases[] = {
      {0, "", ""},
      {2, "", "missing-value column 2 (product title): empty"},
      {3, "15.6\"", "wrong-fields column 3 (subtitle): should be empty"},
      {4, "1", "wrong-fields column 4 (quantity): should be \"5\""},
      {5, "90",
       "price-not-computed column 5 (starting price): the value a price takes when it "
       "could not be computed"},
      {7, "", "bad-price column 7 (buy-now price): no price"},
      {11, "", "missing-value column 11 (category code): empty"},
      {11, "96x", "wrong-fields column 11 (category code): should be a category number"},
      {14, "11399748", "wrong-fields column 14 (shipping template id): should be \"11399747\""},
      {18, "12", "wrong-fields column 18 (warranty): should be 7, 8 or 9"},
      {21, "", "missing-value column 21 (image 2): empty"},
      {23, "4.jpg", "bad-address column 23 (image 4): does not start with http:// or https://"},
      {25, "", "missing-value column 25 (own product id): empty"},
      {28, "https://k.hu/6.jpg", "wrong-fields column 28 (image 6): should be empty"},
      {31, "", "missing-value column 31 (description): empty"},
  };
  for (const auto& c : cases) {
    auto checker = make_vatera_checker();
    FeedItem item;
    item.fields.push_back(Field{"", vatera_record(c.column, c.value)});
    EXPECT_EQ(check(*checker, item).findings, c.findings) << "column " << c.column;
  }
}

TEST(VateraChecker, ASemicolonInsideAValueIsNamedAndTheRecordReadAgain) {
  const struct {
    std::size_t column;
    const char* value;
    const char* findings;
    const char* key;
    const char* price;
  } cases[] = {
      {2, "Lenovo; 15.6\"",
       "wrong-fields column 2 (product title): holds a \";\" that moves every "
       "later field one column on",
       "11250/Lenovo", "282290"},
      {2, "A;B;C;90",
       "wrong-fields column 2 (product title): holds 3 \";\" that move every later "
       "field 3 columns on",
       "11250/Lenovo", "282290"},
      {25, "11250;Lenovo",
       "wrong-fields column 25 (own product id): holds a \";\" that moves every "
       "later field one column on",
       "11250;Lenovo", "282290"},
      {5, "282;290", "wrong-fields column 8 (bid increment): should be \"0\"", "0", ""},
  };
  for (const auto& c : cases) {
    auto checker = make_vatera_checker();
    FeedItem item;
    item.fields.push_back(Field{"", vatera_record(c.column, c.value)});
    const Checked checked = check(*checker, item);
    EXPECT_EQ(checked.findings, c.findings) << c.value;
    EXPECT_EQ(checked.key, c.key) << c.value;
    EXPECT_EQ(checked.price, c.price) << c.value;
  }
}

TEST(VateraChecker, ARecordWithTooFewFields) {
  auto checker = make_vatera_checker();
  FeedItem item;
  item.fields.push_back(Field{"", "7937228;Lenovo;;5;282290"});
  EXPECT_EQ(check(*checker, item).findings, "wrong-fields record: 5 fields, the format has 31");
}

std::string repeat(const std::string& text, std::size_t times) {
  std::string out;
  for (std::size_t i = 0; i < times; ++i)
    out += text;
  return out;
}

// A Heureka item holding the fields of a good one, with `name` set to `value`.
FeedItem heureka_item(const std::string& name, const std::string& value) {
  FeedItem item;
  item.line = 3;
  const std::vector<std::pair<std::string, std::string>> fields = {
      {"ITEM_ID", "11250-Lenovo"},
      {"PRODUCTNAME", "Lenovo IdeaPad U310"},
      {"URL", "https://www.kelvor.sk/u310/"},
      {"IMGURL", "https://www.kelvor.sk/u310.jpg"},
      {"PRICE_VAT", "814,90"},
      {"CATEGORYTEXT", "Heureka.sk | Elektronika | Notebooky | Lenovo"}};
  for (const auto& [field, text] : fields)
    item.fields.push_back(Field{field, field == name ? value : text});
  return item;
}

TEST(HeurekaChecker, ItemIdsAndCategoryPaths) {
  const struct {
    const char* field;
    std::string value;
    const char* findings;
  } cases[] = {
      {"ITEM_ID", "Akc-4100_Asus", ""},
      {"ITEM_ID", std::string(36, '9'), ""},
      {"ITEM_ID", std::string(37, '9'), "bad-item-id ITEM_ID: 37 characters, at most 36"},
      {"ITEM_ID", "11165-Packard Bell",
       "bad-item-id ITEM_ID: holds characters other than A-Z a-z 0-9 _ -"},
      {"ITEM_ID", "11250/Lenovo",
       "bad-item-id ITEM_ID: holds characters other than A-Z a-z 0-9 _ -"},
      {"ITEM_ID", "", "missing-value ITEM_ID: empty"},
      {"CATEGORYTEXT", "Heureka.sk", ""},
      {"CATEGORYTEXT", "Heureka.sk | Elektronika | Počítače a kancelária |  | Toshiba",
       "bad-category CATEGORYTEXT: an empty level"},
      {"CATEGORYTEXT", "Heureka.sk | Notebooky | ", "bad-category CATEGORYTEXT: an empty level"},
      {"CATEGORYTEXT", "Heureka.sk | Elektronika|Notebooky",
       "bad-category CATEGORYTEXT: levels not separated by \" | \""},
      {"CATEGORYTEXT", "Heureka.sk > Notebooky", ""},
      {"CATEGORYTEXT", std::string(256, 'a'), "too-long CATEGORYTEXT: 256 characters, at most 255"},
      {"URL", "https://www.kelvor.sk/" + std::string(278, 'a'), ""},
      {"URL", "https://www.kelvor.sk/" + repeat("á", 278), ""},
      {"URL", "https://www.kelvor.sk/" + std::string(279, 'a'),
       "too-long URL: 301 characters, at most 300"},
      {"URL", "https://www.kelvor.sk/packard bell/", ""},
      {"IMGURL", "https://www.kelvor.sk/PACKARD BELL.jpg", "bad-address IMGURL: holds a blank"},
      {"IMGURL", "", "missing-value IMGURL: empty"},
      {"PRODUCTNAME", std::string(200, 'x'), ""},
      {"PRICE_VAT", "0,90",
       "price-not-computed PRICE_VAT: the value a price takes when it could not "
       "be computed"},
  };
  for (const auto& c : cases) {
    auto checker = make_heureka_checker();
    EXPECT_EQ(check(*checker, heureka_item(c.field, c.value)).findings, c.findings) << c.value;
  }
}

TEST(HeurekaChecker, AUrlMayNameOneItemOnly) {
  auto checker = make_heureka_checker();
  EXPECT_EQ(check(*checker, heureka_item("ITEM_ID", "Akc-1")).findings, "");
  FeedItem second = heureka_item("ITEM_ID", "Akc-2");
  second.line = 19;
  EXPECT_EQ(check(*checker, second).findings,
            "duplicate URL: also the URL of item \"Akc-1\" (line 3)");
}

TEST(ArukeresoChecker, TheHeaderIsTheElevenColumnNames) {
  const std::vector<std::string> names = {
      "manufacturer", "name",        "category",    "product_url",   "price",         "image_url",
      "image_url_2",  "image_url_3", "description", "delivery_time", "product_number"};
  const auto header = [](std::vector<std::string> values) {
    FeedItem item;
    for (const std::string& value : values)
      item.fields.push_back(Field{"", value, false, true});
    return item;
  };
  auto checker = make_arukereso_checker();
  EXPECT_FALSE(checker->check_header(header(names)));
  std::vector<std::string> shorter(names.begin(), names.end() - 1);
  EXPECT_TRUE(checker->check_header(header(shorter)));
  std::vector<std::string> swapped = names;
  std::swap(swapped[4], swapped[5]);
  EXPECT_TRUE(checker->check_header(header(swapped)));
}

}  // namespace
}  // namespace talmo::feedcheck
