#include "product/product_name.h"

#include <string_view>

#include "core/lookup.h"
#include "core/statements.h"
#include "core/strings.h"
#include "core/text_utils.h"

namespace talmo {
namespace {

// Marketing words cut from the processor type so that only the model number stays. Removed in
// this order, each from what the previous removal left: "dual-core" must go before "dual-", and
// "core " only goes where a blank follows it.
constexpr std::string_view kProcessorNoise[] = {
    "pentium",
    "dual-core",
    "2 duo",
    "atom",
    "celeron",
    "Fusion",
    "turion II",
    "phenom II",
    "athlon II",
    "dual-",
    "core ",
    "triple-",
    "arm ",
    "xeon ",
    "exynos ",
    "omap ",
    " t30s",
    "qualcomm",
    "\xC2\xAE ",  // the registered sign and a blank
    // A blank, U+0099 (a trademark sign that came through Windows-1252) and "250".
    " \xC2\x99"
    "250",
};

struct OsKeyword {
  std::string_view keyword, text;
};

// Tested in this order; every hit overwrites the previous one, so the last match wins.
constexpr OsKeyword kOsKeywords[] = {
    {"windows 7", "Win7"}, {"windows 8", "Win8"}, {"android", "Android"},
    {"linux", "Linux"},    {"meego", "MeeGo"},    {"mac", "OS X"},
};

std::string processor_part(const std::string& value) {
  std::string text = item_or_empty(split_stored(value, ITEMDELIMITER), 1);
  for (std::string_view noise : kProcessorNoise)
    text = replace_all_ci(text, noise, "");
  return trim(text);
}

std::string display_part(const std::string& value) {
  const StringList items = split_stored(value, ITEMDELIMITER);
  return replace_all_ci(item_or_empty(items, 0), "\"", "") + item_or_empty(items, 1);
}

std::string disk_part(const std::string& value) {
  std::string text;
  const StringList entries = split_stored(value, ENTRYDELIMITER);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (i > 0)
      text += "+";
    text += item_or_empty(split_stored(entries[i], ITEMDELIMITER), 1);
  }
  return text;
}

std::string memory_part(const std::string& value) {
  return item_or_empty(split_stored(value, ITEMDELIMITER), 0);
}

std::string graphics_part(const std::string& value) {
  const StringList first_card =
      split_stored(item_or_empty(split_stored(value, ENTRYDELIMITER), 0), ITEMDELIMITER);
  const std::string type = item_or_empty(first_card, 2);
  const std::string memory = item_or_empty(first_card, 3);
  if (type.empty())
    return "";
  return memory.empty() ? type : type + " " + trim(memory);
}

// The text of a "flag|text" column when its flag is exactly "1".
std::string flagged_text(const std::string& value) {
  const StringList items = split_stored(value, ITEMDELIMITER);
  return item_or_empty(items, 0) == "1" ? item_or_empty(items, 1) : "";
}

std::string optical_part(const std::string& value) {
  std::string text = flagged_text(value);
  // The second test sees the rewritten text, so a DVD/Blu-ray combo stays "DVD RW".
  if (contains_ci(text, "dvd"))
    text = "DVD RW";
  if (contains_ci(text, "blu"))
    text = "Blu-Ray";
  return text;
}

std::string os_part(const std::string& value) {
  std::string text;
  for (const OsKeyword& os : kOsKeywords) {
    if (contains_ci(value, os.keyword))
      text = os.text;
  }
  return text;
}

struct NameSection {
  const char* column;
  std::string (*part)(const std::string& value);
};

// The parts of the name in the order they appear in it.
constexpr NameSection kNameSections[] = {
    {"processzor", processor_part},
    {"kijelzo", display_part},
    {"merevlemez", disk_part},
    {"memoria", memory_part},
    {"grafikus_kartya", graphics_part},
    {"optikai_meghajto", optical_part},
    {"3g", flagged_text},
    {"operacios_rendszer", os_part},
};

}  // namespace

std::string TERMEKNEV_GENERATOR(Query& VAR_QUERY, const std::string& IDX,
                                const std::string& /*SITE*/) {
  std::string result;
  bool first_section = true;
  for (const NameSection& section : kNameSections) {
    std::string text;
    guard_lookup(VAR_QUERY, [&] {
      if (open_lookup(VAR_QUERY, statements::product_columns({section.column}, IDX)))
        text = section.part(VAR_QUERY.field_text(section.column));
    });
    if (!text.empty())
      result = first_section ? text : result + ", " + text;
    first_section = false;
  }
  return result;
}

std::string GENERATE_ARUKERESO_NAME(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE) {
  std::string NEV;
  std::string TERMEKLEIRAS;
  guard_lookup(VAR_QUERY, [&] {
    if (!open_lookup(VAR_QUERY,
                     statements::product_columns({"tipusmegnevezes", "kiegeszitok"}, IDX)))
      return;
    NEV = VAR_QUERY.field_text("tipusmegnevezes");
    const std::string accessories = trim(VAR_QUERY.field_text("kiegeszitok"));
    if (!accessories.empty())
      TERMEKLEIRAS = trim(replace_all(accessories, ";", ","));
    const std::string components = TERMEKNEV_GENERATOR(VAR_QUERY, IDX, SITE);
    TERMEKLEIRAS = TERMEKLEIRAS.empty() ? components : components + ", " + TERMEKLEIRAS;
  });
  return NEV + " - " + TERMEKLEIRAS;
}

std::string GENERATE_TALMO_TERMEKNEV(Query& VAR_QUERY, const std::string& IDX,
                                     const std::string& SITE) {
  std::string result = GENERATE_ARUKERESO_NAME(VAR_QUERY, IDX, SITE);
  guard_lookup(
      VAR_QUERY,
      [&] {
        if (!open_lookup(VAR_QUERY, statements::product_columns({"gyarto"}, IDX)))
          return;
        const std::string GYARTO = VAR_QUERY.field_text("gyarto");
        if (!GYARTO.empty())
          result = GYARTO + " " + result;
      },
      QueryErrorLine::with_message);
  return result;
}

}  // namespace talmo
