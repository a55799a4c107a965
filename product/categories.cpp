#include "product/categories.h"

#include <string_view>

#include "core/lookup.h"
#include "core/strings.h"

namespace talmo {
namespace {

// The canonical kind names; a level-0 name matching one in any case stands for it.
constexpr std::string_view kKinds[] = {"Laptop", "Tablet", "Minden egyben PC - AIO PC"};

std::string canonical_kind(const std::string& name) {
  std::string kind;
  for (std::string_view candidate : kKinds) {
    if (equals_ci(name, candidate))
      kind = candidate;
  }
  return kind;
}

std::string level_zero_categories_sql(const std::string& IDX) {
  return "SELECT * FROM product_categories a LEFT JOIN categories b ON "
         "a.prod_cat_category_id=b.cat_id WHERE a.prod_cat_product_id='" +
         IDX + "' " + "AND b.cat_category_level='0' " + "ORDER BY b.cat_id DESC;";
}

}  // namespace

std::string GETMAINCATEGORY(Query& VAR_QUERY, const std::string& IDX) {
  std::string result;
  guard_lookup(VAR_QUERY, [&] {
    if (!open_lookup(VAR_QUERY, level_zero_categories_sql(IDX)))
      return;
    // Rows come by descending cat_id and every hit overwrites: the lowest cat_id wins.
    for (; !VAR_QUERY.eof(); VAR_QUERY.next()) {
      const std::string kind = canonical_kind(VAR_QUERY.field_text("cat_category_name"));
      if (!kind.empty())
        result = kind;
    }
  });
  return result;
}

std::string GETSECONDMAINCATEGORY(Query& VAR_QUERY, const std::string& IDX) {
  const std::string MAIN_CATEGORY = GETMAINCATEGORY(VAR_QUERY, IDX);
  std::string result;
  guard_lookup(VAR_QUERY, [&] {
    if (!open_lookup(VAR_QUERY, level_zero_categories_sql(IDX)) || VAR_QUERY.record_count() < 2)
      return;
    for (; !VAR_QUERY.eof(); VAR_QUERY.next()) {
      const std::string SECOND_CATEGORY = canonical_kind(VAR_QUERY.field_text("cat_category_name"));
      if (!SECOND_CATEGORY.empty() && SECOND_CATEGORY != MAIN_CATEGORY)
        result = SECOND_CATEGORY;
    }
  });
  return result;
}

std::string GETTHIRDCATEGORY(Query& VAR_QUERY, const std::string& IDX) {
  const std::string MAIN_CATEGORY = GETMAINCATEGORY(VAR_QUERY, IDX);
  const std::string GY = trim(lookup_text(
      VAR_QUERY, "SELECT gyarto FROM laptop_adatbazis WHERE id='" + IDX + "';", "gyarto"));
  std::string result;
  if (GY.empty())
    return result;
  guard_lookup(
      VAR_QUERY,
      [&] {
        if (!open_lookup(VAR_QUERY,
                         "SELECT cat_id FROM categories WHERE cat_category_level='1' AND "
                         "cat_category_name='" +
                             GY + " " + MAIN_CATEGORY + "';"))
          return;
        const std::string parent_id = VAR_QUERY.field_text("cat_id");
        if (open_lookup(VAR_QUERY,
                        "SELECT cat_category_name FROM categories WHERE cat_category_level='2' "
                        "AND cat_category_parent_id='" +
                            parent_id + "';"))
          result = trim(VAR_QUERY.field_text("cat_category_name"));
      },
      QueryErrorLine::with_error_message);
  return result;
}

std::string GETCATEGORYIDFROMNAMEANDLEVEL(Query& VAR_QUERY, const std::string& NAME,
                                          const std::string& LEVEL) {
  std::string result = "-1";
  guard_lookup(VAR_QUERY, [&] {
    if (open_lookup(VAR_QUERY, "SELECT cat_id FROM categories WHERE cat_category_name='" + NAME +
                                   "' " + "AND cat_category_level='" + LEVEL + "' " +
                                   "ORDER BY cat_id DESC LIMIT 1;"))
      result = VAR_QUERY.field_text("cat_id");
  });
  return result;
}

}  // namespace talmo
