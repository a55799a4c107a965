#pragma once

#include <string>

#include "core/database.h"

namespace talmo {

// The gross price of product IDX on SITE ("hu", "sk", "cz") with the site's ending, e.g. "123490",
// "11.9"; with CHECK_FIX_AR a fixed price other than "0" is returned as stored (cleaned). Failed
// lookups keep their defaults; a tax, discount or extra profit that is not a number gives "0".
// USE_OLD_PRICE computes from `netto_darabar` instead of `uj_netto_darabar`.
std::string GENERATE_PRICE_WITH_TAX(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE, bool CHECK_FIX_AR, bool USE_OLD_PRICE);

// The newest tax percent text of SITE (as passed, e.g. "27"); "" without a row or on failure.
// IDX is not used.
std::string GENERATE_PRODUCT_TAX(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE);

// The currency of an upper-case country code: "HU" HUF, "SK" and "DE" EUR, "CZ" CZK; else "".
std::string GETVALUTAFROMCOUNTRY(const std::string& COUNTRY);

// The country ("SK", "HU", "DE") of the supplier named INPUT, or of product IDX's `nagyraktar`
// when INPUT is empty. The last supplier key contained in the name wins; no hit gives "SK".
std::string GETCOUNTRYFROMWAREHOUSE(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& INPUT);

}  // namespace talmo
