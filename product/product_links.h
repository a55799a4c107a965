#pragma once

#include <string>

#include "core/database.h"

namespace talmo {

// Tracking suffixes of the product page addresses; "<gepnev>" stands for the SKU in URL form.
inline constexpr char TALMO_BACKTRACE[] =
    "/?utm_source=talmo&utm_medium=<gepnev>&utm_campaign=konverzio";
inline constexpr char ARUKERESO_BACKTRACE[] =
    "/?utm_source=arukereso&utm_medium=<gepnev>&utm_campaign=konverzio";
inline constexpr char GRANDO_BACKTRACE[] =
    "/?utm_source=grando&utm_medium=<gepnev>&utm_campaign=konverzio";
inline constexpr char HEUREKASK_BACKTRACE[] =
    "/?utm_source=heureka&utm_medium=<gepnev>&utm_campaign=konverzio";
// Kept for comparison sites the shop may feed again; no feed uses them today.
inline constexpr char OLCSOBBAT_BACKTRACE[] =
    "/?utm_source=olcsobbat&utm_medium=<gepnev>&utm_campaign=konverzio";
inline constexpr char SHOPHUNTER_BACKTRACE[] =
    "/?utm_source=shophunter&utm_medium=<gepnev>&utm_campaign=konverzio";
inline constexpr char SHOPMANIA_BACKTRACE[] =
    "/?utm_source=shopmania&utm_medium=<gepnev>&utm_campaign=konverzio";
inline constexpr char PRICEMANIA_BACKTRACE[] =
    "/?utm_source=pricemania&utm_medium=<gepnev>&utm_campaign=konverzio";

// The word after the slug in a product page address, per shop.
inline constexpr char VIRTUEMART_SEO_END_HU[] = "elado";
inline constexpr char VIRTUEMART_SEO_END_SK[] = "cena";
inline constexpr char VIRTUEMART_SEO_END_CZ[] = "popis";

// Where the shop keeps product pictures, relative to its base address.
inline constexpr char IMAGE_DIRECTORY[] = "images/stories/virtuemart/product/";

// `sorszam` + "/" + `gyarto` of product IDX (e.g. "12345/Asus"): the product identifier of the
// feeds. No row, or a failed query, gives "".
std::string GENERATE_PRODUCT_SKU(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE);

// The readable part of the product's page address, e.g. "asus-k55vd-12345". A clearance item
// ("akc" in `sorszam`) gives the site's base address instead. No row gives ""; a failed query or
// a `sorszam` that is not a number prints the query-error line and gives "".
std::string GENERATE_SLUG(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE);

// Product page addresses with each feed's tracking suffix: base address, category word, slug,
// end word and the SKU in the suffix. Missing rows leave their parts empty. Grando and Heureka.sk
// link a clearance item to the shop's home page; the Heureka.sk address is lower-cased whole.
std::string GENERATE_TALMO_TERMEKLINK(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);
std::string GENERATE_ARUKERESO_PRODUCT_URL(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE);
std::string GENERATE_GRANDO_PAGE_LINK(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);
std::string GENERATE_HEUREKASK_URL(Query& VAR_QUERY, const std::string& IDX,
                                   const std::string& SITE);

// File name of the product's NR-th picture (a single figure), e.g. "ASUS-K55VD-02-<host>.jpg";
// no row, or a failed query, gives "".
std::string GENERATE_PIC_FILE_URL(const std::string& NR, Query& VAR_QUERY, const std::string& IDX,
                                  const std::string& SITE);
// File name of the product's first picture.
std::string GENERATE_PRODUCT_FULL_IMAGE(Query& VAR_QUERY, const std::string& IDX,
                                        const std::string& SITE);

// Full address of the first picture; no "/" is doubled after the base address.
std::string GENERATE_ARUKERESO_IMAGE_URL(Query& VAR_QUERY, const std::string& IDX,
                                         const std::string& SITE);
std::string GENERATE_TALMO_FOTOLINK(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE);

// Full address of the first picture with "/" always put after the base address.
std::string GENERATE_GRANDO_IMAGE_URL(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);
std::string GENERATE_HEUREKASK_IMGURL(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);
// GENERATE_GRANDO_IMAGE_URL with every "-01-" turned into "-02-": the second picture.
std::string GENERATE_HEUREKASK_IMGURL_ALTERNATIVE(Query& VAR_QUERY, const std::string& IDX,
                                                  const std::string& SITE);

// Full addresses of pictures 1 to 4 for the Vatera columns, "/" always put after the base.
std::string GENERATE_VATERA_20_KEPEK1(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);
std::string GENERATE_VATERA_21_KEPEK2(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);
std::string GENERATE_VATERA_22_KEPEK3(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);
std::string GENERATE_VATERA_23_KEPEK4(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);

}  // namespace talmo
