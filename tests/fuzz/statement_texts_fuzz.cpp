// Every statement of the catalogue on any values. Input, one per line: up to three values. Each
// value stands in its statement's text exactly as given, once, in the order of the parameters,
// and nothing else in the text depends on it; the statement's parameters are the values.
#include <functional>

#include "core/statements.h"
#include "tests/fuzz/fuzz_support.h"

namespace talmo::fuzzing {
namespace {

struct Builder {
  StatementKind kind;
  std::size_t values;
  std::function<Statement(const StringList&)> build;
};

const std::vector<Builder>& builders() {
  namespace s = statements;
  using K = StatementKind;
  using V = const StringList&;
  static const std::vector<Builder> all = {
      {K::product_columns, 3,
       [](V v) {
         return s::product_columns({v[0], v[1]}, v[2]);
       }},
      {K::price_amounts, 1, [](V v) { return s::price_amounts(v[0]); }},
      {K::translation, 2, [](V v) { return s::translation(v[0], v[1]); }},
      {K::level_zero_categories, 1, [](V v) { return s::level_zero_categories(v[0]); }},
      {K::series_parent, 2, [](V v) { return s::series_parent(v[0], v[1]); }},
      {K::series_names, 1, [](V v) { return s::series_names(v[0]); }},
      {K::category_id, 2, [](V v) { return s::category_id(v[0], v[1]); }},
      {K::product_in_category, 2, [](V v) { return s::product_in_category(v[0], v[1]); }},
      {K::product_currency, 1, [](V v) { return s::product_currency(v[0]); }},
      {K::exchange_rate, 2, [](V v) { return s::exchange_rate(v[0], v[1]); }},
      {K::profit_margin, 2, [](V v) { return s::profit_margin(v[0], v[1]); }},
      {K::fixed_price, 2, [](V v) { return s::fixed_price(v[0], v[1]); }},
      {K::tax, 1, [](V v) { return s::tax(v[0]); }},
      {K::extra_texts, 2, [](V v) { return s::extra_texts(v[0], v[1]); }},
  };
  return all;
}

// The statement's text with markers in place of the values, the markers put back by the values.
std::string spliced(std::string shape, const StringList& markers, const StringList& values) {
  std::string text;
  for (std::size_t i = 0; i < markers.size(); ++i) {
    const std::size_t at = shape.find(markers[i]);
    FUZZ_CHECK(at != std::string::npos);
    text += shape.substr(0, at) + values[i];
    shape.erase(0, at + markers[i].size());
    FUZZ_CHECK(!holds(shape, markers[i]));  // once only, and in the parameters' order
  }
  return text + shape;
}

}  // namespace
}  // namespace talmo::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talmo;
  using namespace talmo::fuzzing;
  const StringList fields = input_fields(data, size, 3);
  const StringList markers = {"\x01#0\x02", "\x01#1\x02", "\x01#2\x02"};
  for (const Builder& builder : builders()) {
    const StringList values(fields.begin(), fields.begin() + builder.values);
    const StringList shape_values(markers.begin(), markers.begin() + builder.values);
    const Statement statement = builder.build(values);
    const Statement shape = builder.build(shape_values);
    FUZZ_CHECK(statement.kind() == builder.kind);
    FUZZ_CHECK(statement.parameters() == values);
    FUZZ_CHECK(shape.text().rfind("SELECT ", 0) == 0 && shape.text().back() == ';');
    FUZZ_CHECK(statement.text() == spliced(shape.text(), shape_values, values));
  }
  // The id list takes no value at all.
  FUZZ_CHECK(statements::product_ids().parameters().empty());
  return 0;
}
