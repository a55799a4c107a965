#include "product/product_links.h"

#include "core/lookup.h"
#include "core/statements.h"
#include "core/strings.h"
#include "core/text_utils.h"
#include "product/categories.h"
#include "product/slug.h"
#include "product/translation.h"

namespace talmo {
namespace {

// How one feed builds its product page address.
struct ProductUrlFeed {
  const char* backtrace;
  const char* end_word;
  bool home_page_for_clearance;  // clearance items link to the shop's home page
  bool translate_category;       // the category word is looked up for the site's language
  bool lower_case;               // the whole address is lower-cased at the end
};

// The end words are the feeds' own: every Hungarian feed says "elado" whatever site it is built
// for, and Heureka.sk always says "cena".
constexpr ProductUrlFeed kTalmoUrl{TALMO_BACKTRACE, VIRTUEMART_SEO_END_HU, false, false, false};
constexpr ProductUrlFeed kArukeresoUrl{ARUKERESO_BACKTRACE, VIRTUEMART_SEO_END_HU, false, false,
                                       false};
constexpr ProductUrlFeed kGrandoUrl{GRANDO_BACKTRACE, VIRTUEMART_SEO_END_HU, true, false, false};
constexpr ProductUrlFeed kHeurekaSkUrl{HEUREKASK_BACKTRACE, VIRTUEMART_SEO_END_SK, true, true,
                                       true};

// Whether product IDX is a clearance item; false without a row. Raises on a failed query.
bool is_clearance_item(Query& VAR_QUERY, const std::string& IDX) {
  return open_lookup(VAR_QUERY, statements::product_columns({"sorszam"}, IDX)) &&
         contains_ci(VAR_QUERY.field_text("sorszam"), "akc");
}

std::string product_url(const ProductUrlFeed& feed, Query& VAR_QUERY, const std::string& IDX,
                        const std::string& SITE) {
  if (feed.home_page_for_clearance) {
    bool clearance = false;
    // A failed clearance query ends the builder before anything is built.
    if (!guard_lookup(VAR_QUERY, [&] { clearance = is_clearance_item(VAR_QUERY, IDX); }))
      return "";
    if (clearance)
      return feed.lower_case ? lower_ascii(GETSITEURL(SITE)) : GETSITEURL(SITE);
  }
  const std::string SKU =
      lower_ascii(replace_all(GENERATE_PRODUCT_SKU(VAR_QUERY, IDX, SITE), "/", "-"));
  const std::string DOMAIN = GETSITEURL(SITE);
  const std::string CATEGORY = GETMAINCATEGORY(VAR_QUERY, IDX);
  const std::string SLUG = GENERATE_SLUG(VAR_QUERY, IDX, SITE);
  std::string category_word = GETCATEGORYURL("", CATEGORY);
  if (feed.translate_category)
    category_word = GETTRANSLATION(VAR_QUERY, category_word, SITE);
  const std::string result = with_trailing_slash(DOMAIN) + category_word + "/" + SLUG + "-" +
                             feed.end_word + replace_all_ci(feed.backtrace, "<gepnev>", SKU);
  return feed.lower_case ? lower_ascii(result) : result;
}

// Base address + "/" + picture directory, the "/" put even after a base that ends in one.
std::string picture_directory_url(const std::string& SITE) {
  return GETSITEURL(SITE) + "/" + IMAGE_DIRECTORY;
}

}  // namespace

std::string GENERATE_PRODUCT_SKU(Query& VAR_QUERY, const std::string& IDX,
                                 const std::string& /*SITE*/) {
  std::string result;
  guard_lookup(VAR_QUERY, [&] {
    if (open_lookup(VAR_QUERY, statements::product_columns({"sorszam", "gyarto"}, IDX)))
      result = VAR_QUERY.field_text("sorszam") + "/" + VAR_QUERY.field_text("gyarto");
  });
  return result;
}

std::string GENERATE_SLUG(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE) {
  std::string result;
  guard_lookup(VAR_QUERY, [&] {
    if (!open_lookup(VAR_QUERY, statements::product_columns(
                                    {"sorszam", "gyarto", "nev", "tipusmegnevezes"}, IDX)))
      return;
    const std::string sorszam = VAR_QUERY.field_text("sorszam");
    if (contains_ci(sorszam, "akc")) {
      result = GETSITEURL(SITE);
      return;
    }
    result = product_slug(sorszam, VAR_QUERY.field_text("gyarto"), VAR_QUERY.field_text("nev"),
                          VAR_QUERY.field_text("tipusmegnevezes"));
  });
  return result;
}

std::string GENERATE_TALMO_TERMEKLINK(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE) {
  return product_url(kTalmoUrl, VAR_QUERY, IDX, SITE);
}

std::string GENERATE_ARUKERESO_PRODUCT_URL(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE) {
  return product_url(kArukeresoUrl, VAR_QUERY, IDX, SITE);
}

std::string GENERATE_GRANDO_PAGE_LINK(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE) {
  return product_url(kGrandoUrl, VAR_QUERY, IDX, SITE);
}

std::string GENERATE_HEUREKASK_URL(Query& VAR_QUERY, const std::string& IDX,
                                   const std::string& SITE) {
  return product_url(kHeurekaSkUrl, VAR_QUERY, IDX, SITE);
}

std::string GENERATE_PIC_FILE_URL(const std::string& NR, Query& VAR_QUERY, const std::string& IDX,
                                  const std::string& SITE) {
  std::string result;
  guard_lookup(VAR_QUERY, [&] {
    if (open_lookup(VAR_QUERY, statements::product_columns({"gyarto", "tipus"}, IDX))) {
      result = upper_ascii(VAR_QUERY.field_text("gyarto")) + "-" +
               upper_ascii(VAR_QUERY.field_text("tipus")) + "-" + "0" + NR + "-" +
               GETSITENAME(SITE) + ".jpg";
    }
  });
  return result;
}

std::string GENERATE_PRODUCT_FULL_IMAGE(Query& VAR_QUERY, const std::string& IDX,
                                        const std::string& SITE) {
  return GENERATE_PIC_FILE_URL("1", VAR_QUERY, IDX, SITE);
}

std::string GENERATE_ARUKERESO_IMAGE_URL(Query& VAR_QUERY, const std::string& IDX,
                                         const std::string& SITE) {
  return with_trailing_slash(GETSITEURL(SITE)) + IMAGE_DIRECTORY +
         GENERATE_PRODUCT_FULL_IMAGE(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_TALMO_FOTOLINK(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE) {
  return GENERATE_ARUKERESO_IMAGE_URL(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_GRANDO_IMAGE_URL(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE) {
  return picture_directory_url(SITE) + GENERATE_PRODUCT_FULL_IMAGE(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_HEUREKASK_IMGURL(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE) {
  return GENERATE_GRANDO_IMAGE_URL(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_HEUREKASK_IMGURL_ALTERNATIVE(Query& VAR_QUERY, const std::string& IDX,
                                                  const std::string& SITE) {
  return replace_all_ci(GENERATE_GRANDO_IMAGE_URL(VAR_QUERY, IDX, SITE), "-01-", "-02-");
}

std::string GENERATE_VATERA_20_KEPEK1(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE) {
  return picture_directory_url(SITE) + GENERATE_PIC_FILE_URL("1", VAR_QUERY, IDX, SITE);
}

std::string GENERATE_VATERA_21_KEPEK2(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE) {
  return picture_directory_url(SITE) + GENERATE_PIC_FILE_URL("2", VAR_QUERY, IDX, SITE);
}

std::string GENERATE_VATERA_22_KEPEK3(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE) {
  return picture_directory_url(SITE) + GENERATE_PIC_FILE_URL("3", VAR_QUERY, IDX, SITE);
}

std::string GENERATE_VATERA_23_KEPEK4(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE) {
  return picture_directory_url(SITE) + GENERATE_PIC_FILE_URL("4", VAR_QUERY, IDX, SITE);
}

}  // namespace talmo
