#include "description/simple_sections.h"

#include "core/lookup.h"
#include "core/statements.h"
#include "core/strings.h"
#include "core/text_utils.h"
#include "description/article_links.h"
#include "description/search_icon.h"
#include "description/spec_builders.h"
#include "product/translation.h"

namespace talmo {
namespace {

// Search icons of the installed systems; a name takes the first entry it contains.
struct OsIcon {
  const char* word;
  const char* icon;
  const char* keyword;
};
constexpr OsIcon kOsIcons[] = {
    {"android", "images/leiras/android.png", "android"},
    {"free dos", "images/leiras/freedos.png", "free+dos"},
    {"linux", "images/leiras/linux.png", "linux"},
    {"mac os x", "images/leiras/macosx.png", "mac+os+x"},
    {"meego", "images/leiras/meego.png", "meego"},
    {"windows 7", "images/leiras/windows7.png", "windows+7"},
    {"windows 8", "images/leiras/windows8.png", "windows+8"},
    {"windows vista", "images/leiras/windowsvista.png", "windows+vista"},
    {"windows xp", "images/leiras/windowsxp.png", "windows+xp"},
};

// The shop's articles about a system, each linked once per section, in this order.
struct OsArticle {
  const char* word;
  const std::string* link;
};
const OsArticle kOsArticles[] = {
    {"windows 8", &WINDOWS8_LINK},
    {"linux", &LINUX_LINK},
    {"android", &ANDROID_LINK},
};

// The product's stored `column`; "" when the product has no row. Raises: call it in a guard.
std::string read_product_column(Query& query, const std::string& column, const std::string& IDX) {
  if (!open_lookup(query, statements::product_columns({column}, IDX)))
    return "";
  return query.field_text(column);
}

// One label/value row of the description inside the site's wrappers.
std::string section_row(const std::string& title, const std::string& icons,
                        const std::string& value, const std::string& SITE) {
  return GETVAR("megnevezes_szoveg", SITE) + title + icons + GETVAR("megnevezes_leiras", SITE) +
         value + GETVAR("leiras_szoveg", SITE);
}

// A yes/no column shown as BUILD gives it, or as the translated `without` text when that is
// empty or fails. `icon` is shown when the stored text contains `icon_word`.
std::string built_section(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE,
                          const std::string& column, const std::string& title,
                          const std::string& without, const std::string& icon_word = "",
                          const std::string& icon = "") {
  std::string value;
  std::string icons;
  guard_lookup(VAR_QUERY, [&] {
    const std::string stored = read_product_column(VAR_QUERY, column, IDX);
    value = BUILD(stored);
    if (!icon_word.empty() && contains_ci(stored, icon_word))
      icons = icon;
  });
  const std::string title_text = GETTRANSLATION(VAR_QUERY, title, SITE);
  if (value.empty())
    value = GETTRANSLATION(VAR_QUERY, without, SITE);
  return section_row(title_text, icons, value, SITE);
}

// A stored text shown translated as a whole (an untranslated text shows nothing).
std::string translated_section(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE,
                               const std::string& column, const std::string& title) {
  std::string stored;
  guard_lookup(VAR_QUERY, [&] { stored = read_product_column(VAR_QUERY, column, IDX); });
  const std::string title_text = GETTRANSLATION(VAR_QUERY, title, SITE);
  const std::string value = GETTRANSLATION(VAR_QUERY, stored, SITE);
  return section_row(title_text, "", value, SITE);
}

// The installed systems of a stored operating-system value.
struct InstalledSystems {
  StringList names;
  std::string icons;
};

// Entries "presence|flag|name|count" joined by "^"; an entry is installed when its presence is
// above 0 and its flag is "1". A presence that is not a number or a missing sub-value raises.
InstalledSystems read_installed_systems(const std::string& stored) {
  InstalledSystems found;
  const std::string value = trim(stored);
  if (value.empty())
    return found;
  for (const std::string& entry : split_stored(value, ENTRYDELIMITER)) {
    const StringList items = split_stored(entry, ITEMDELIMITER);
    if (to_integer(item_at(items, 0)) <= 0 || item_at(items, 1) != "1")
      continue;
    const std::string& name = item_at(items, 2);
    found.names.push_back(name);
    for (const OsIcon& os : kOsIcons) {
      if (contains_ci(name, os.word)) {
        found.icons += search_icon_line(os.keyword, os.icon);
        break;
      }
    }
  }
  return found;
}

}  // namespace

std::string GENERATELEIRAS_OPTIKAIMEGHAJTO(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE) {
  // Tested on the stored text, so a drive marked absent still shows the Blu-ray icon.
  return built_section(VAR_QUERY, IDX, SITE, "optikai_meghajto", "Optikai meghajtó",
                       "Optikai meghajtó nélkül", "blu",
                       search_icon_line("blu-ray", "images/leiras/bluray.png"));
}

std::string GENERATELEIRAS_OPERACIOSRENDSZER(Query& VAR_QUERY, const std::string& IDX,
                                             const std::string& SITE) {
  const std::string title = GETTRANSLATION(VAR_QUERY, "Operációs rendszer", SITE);
  InstalledSystems systems;
  guard_lookup(VAR_QUERY, [&] {
    systems = read_installed_systems(read_product_column(VAR_QUERY, "operacios_rendszer", IDX));
  });

  std::string value;
  if (systems.names.empty()) {
    value = GETTRANSLATION(VAR_QUERY, "Operációs rendszer nélkül", SITE);
  } else {
    for (std::size_t i = 0; i < systems.names.size(); ++i)
      value += (i > 0 ? "<br />" : "") + systems.names[i];
  }
  for (const OsArticle& article : kOsArticles) {
    for (const std::string& name : systems.names) {
      if (contains_ci(name, article.word)) {
        value += ADDLINK(*article.link, SITE);
        break;
      }
    }
  }
  return section_row(title, systems.icons, value, SITE);
}

std::string GENERATELEIRAS_BILLENTYUZET(Query& VAR_QUERY, const std::string& IDX,
                                        const std::string& SITE) {
  return built_section(VAR_QUERY, IDX, SITE, "billentyuzet", "Billentyûzet", "Billentyûzet nélkül");
}

std::string GENERATELEIRAS_KESZLET(Query& VAR_QUERY, const std::string& IDX,
                                   const std::string& SITE) {
  return translated_section(VAR_QUERY, IDX, SITE, "status", "Készlet");
}

std::string GENERATELEIRAS_GARANCIA(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE) {
  return translated_section(VAR_QUERY, IDX, SITE, "garancia", "Garancia");
}

}  // namespace talmo
