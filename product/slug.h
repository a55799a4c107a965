#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace talmo {

// Products from this serial number on are named by `nev` in their slug; older ones by
// `tipusmegnevezes`. The shop's existing page addresses depend on the fixed threshold.
inline constexpr std::int32_t FIRST_SORSZAM_NAMED_BY_NEV = 11130;

// The model name a product's slug uses: NEV from FIRST_SORSZAM_NAMED_BY_NEV on, else
// TIPUSMEGNEVEZES.
const std::string& slug_model_name(std::int32_t SORSZAM, const std::string& NEV,
                                   const std::string& TIPUSMEGNEVEZES);

// The page slug of a product from its stored columns: GYARTO, model name and SORSZAM joined by
// blanks and passed through `slugify`. A SORSZAM that is not a whole integer raises
// ConversionError.
std::string product_slug(const std::string& SORSZAM, const std::string& GYARTO,
                         const std::string& NEV, const std::string& TIPUSMEGNEVEZES);

// ASCII letters lower-cased, then the shop's fixed replacement list applied in order (accents
// dropped, punctuation and blanks to "-"). Quirks kept on purpose because live addresses carry
// them: "á" ends up as "é", and double blanks are merged only once, so "a - b" gives "a---b".
std::string slugify(std::string_view TEXT);

// The category path word of a main-category name INPUT. With an empty GYARTO only the exact kinds
// (any case) give a word; otherwise the word is GYARTO lower-cased plus the kind found in INPUT.
// Anything else gives "".
std::string GETCATEGORYURL(const std::string& GYARTO, const std::string& INPUT);

// DOMAIN with a "/" appended unless it already ends in one.
std::string with_trailing_slash(const std::string& DOMAIN);

}  // namespace talmo
