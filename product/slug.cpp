#include "product/slug.h"

#include "core/strings.h"

namespace talmo {
namespace {

struct Replacement {
  std::string_view find;
  std::string_view replace_by;
};

// Applied in this order, each to every occurrence, ASCII letters matched in any case. Double
// blanks are merged once only, before punctuation turns into blanks. "õ" and "û" are the stored
// look-alikes of the double-acute letters. "á" runs after "é", so the shop's addresses keep "é"
// for "á".
// clang-format off
constexpr Replacement kSlugReplacements[] = {
    {"  ", " "},
    {"õ", "o"},
    {"ú", "u"},
    {"é", "e"},
    {"á", "é"},
    {"û", "u"},
    {"í", "i"},
    {"ó", "o"},
    {"ü", "u"},
    {"ö", "o"},
    {"'", " "},
    {"\"", " "},
    {"+", " "},
    {"!", " "},
    {"§", " "},
    {"%", " "},
    {"/", " "},
    {"=", " "},
    {"(", " "},
    {")", " "},
    {"?", " "},
    {",", " "},
    {".", " "},
    {":", " "},
    {"-", " "},
    {"_", " "},
    {" ", "-"},
};
// clang-format on

struct KindWord {
  std::string_view kind;
  std::string_view word;
};

// Main-category names as they stand alone, for URLs without a manufacturer.
constexpr KindWord kKindWords[] = {
    {"laptop", "laptop"},
    {"tablet", "tablet"},
    {"Minden egyben PC - AIO PC", "minden-egyben-pc-aio-pc"},
};

// Parts of a main-category name and the suffix after the manufacturer; the last hit wins.
constexpr KindWord kManufacturerKindSuffixes[] = {
    {" AIO PC", "-minden-egyben-pc"},
    {"laptop", "-laptop"},
    {"tablet", "-tablet"},
};

}  // namespace

const std::string& slug_model_name(std::int32_t SORSZAM, const std::string& NEV,
                                   const std::string& TIPUSMEGNEVEZES) {
  return SORSZAM >= FIRST_SORSZAM_NAMED_BY_NEV ? NEV : TIPUSMEGNEVEZES;
}

std::string product_slug(const std::string& SORSZAM, const std::string& GYARTO,
                         const std::string& NEV, const std::string& TIPUSMEGNEVEZES) {
  const std::string& model = slug_model_name(to_integer(SORSZAM), NEV, TIPUSMEGNEVEZES);
  return slugify(GYARTO + " " + model + " " + SORSZAM);
}

std::string slugify(std::string_view TEXT) {
  std::string slug = lower_ascii(TEXT);
  for (const Replacement& row : kSlugReplacements)
    slug = replace_all_ci(slug, row.find, row.replace_by);
  return slug;
}

std::string GETCATEGORYURL(const std::string& GYARTO, const std::string& INPUT) {
  std::string result;
  if (GYARTO.empty()) {
    for (const KindWord& entry : kKindWords) {
      if (equals_ci(INPUT, entry.kind))
        result = entry.word;
    }
    return result;
  }
  for (const KindWord& entry : kManufacturerKindSuffixes) {
    if (contains_ci(INPUT, entry.kind))
      result = lower_ascii(GYARTO) + std::string(entry.word);
  }
  return result;
}

std::string with_trailing_slash(const std::string& DOMAIN) {
  if (!DOMAIN.empty() && DOMAIN.back() == '/')
    return DOMAIN;
  return DOMAIN + "/";
}

}  // namespace talmo
