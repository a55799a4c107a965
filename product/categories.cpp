#include "product/categories.h"

#include <string_view>

#include "core/lookup.h"
#include "core/statements.h"
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

}  // namespace

std::string GETMAINCATEGORY(Query& VAR_QUERY, const std::string& IDX) {
  std::string result;
  guard_lookup(VAR_QUERY, [&] {
    if (!open_lookup(VAR_QUERY, statements::level_zero_categories(IDX)))
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
    if (!open_lookup(VAR_QUERY, statements::level_zero_categories(IDX)) ||
        VAR_QUERY.record_count() < 2)
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
  const std::string GY =
      trim(lookup_text(VAR_QUERY, statements::product_columns({"gyarto"}, IDX), "gyarto"));
  std::string result;
  if (GY.empty())
    return result;
  guard_lookup(
      VAR_QUERY,
      [&] {
        if (!open_lookup(VAR_QUERY, statements::series_parent(GY, MAIN_CATEGORY)))
          return;
        const std::string parent_id = VAR_QUERY.field_text("cat_id");
        if (open_lookup(VAR_QUERY, statements::series_names(parent_id)))
          result = trim(VAR_QUERY.field_text("cat_category_name"));
      },
      QueryErrorLine::with_error_message);
  return result;
}

std::string GETCATEGORYIDFROMNAMEANDLEVEL(Query& VAR_QUERY, const std::string& NAME,
                                          const std::string& LEVEL) {
  std::string result = "-1";
  guard_lookup(VAR_QUERY, [&] {
    if (open_lookup(VAR_QUERY, statements::category_id(NAME, LEVEL)))
      result = VAR_QUERY.field_text("cat_id");
  });
  return result;
}

}  // namespace talmo
