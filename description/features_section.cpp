#include "description/features_section.h"

#include <utility>

#include "core/lookup.h"
#include "core/statements.h"
#include "core/strings.h"
#include "core/text_utils.h"
#include "description/html_helpers.h"
#include "description/search_icon.h"
#include "description/spec_builders.h"
#include "product/translation.h"

namespace talmo {
namespace {

// One port or extra of the features row, in the order the section lists them.
struct Feature {
  const char* column;
  std::string (*builder)(const std::string&);
  const char* label;
  const char* icon;     // search icon, "" for none
  const char* keyword;  // its search keyword
  // The icon only for a value containing this text ("" for any value).
  const char* icon_needs;
  // Removed from the value shown, in any letter case ("" for nothing).
  const char* removed;
};

const Feature kFeatures[] = {
    {"wifi", BUILD, "WiFi", "images/leiras/wifi.png", "wifi", "", ""},
    {"usb", BUILD_NUMBERED, "USB csatlakozók", "images/leiras/usb3.png", "usb+3", "3.0", ""},
    {"kartyaolvaso", BUILD, "Kártyaolvasó", "", "", "", ""},
    {"hdmi", BUILD, "HDMI", "images/leiras/hdmi.png", "hdmi", "", ""},
    {"vga", BUILD, "VGA", "", "", "", "vga"},
    {"webkamera", BUILD_NUMBERED, "Webkamera", "", "", "", ""},
    {"esata", BUILD, "e-SATA", "images/leiras/esata.png", "esata", "", ""},
    {"express_card", BUILD, "ExpressCard", "images/leiras/expresscard.png", "express+card", "", ""},
    {"bluetooth", BUILD, "BlueTooth", "images/leiras/bluetooth.png", "bluetooth", "", ""},
    {"lan", BUILD, "LAN", "", "", "", ""},
    {"tv", BUILD, "TV-Tuner", "", "", "", ""},
    {"3g", BUILD, "3G", "images/leiras/3g.png", "3g", "", ""},
    {"ujjlenyomat_olvaso", BUILD, "Ujjlenyomat olvasó", "", "", "", ""},
};

// The columns of the features row: every feature's in table order, then the free texts and the
// battery.
StringList feature_row_columns() {
  StringList columns;
  for (const Feature& feature : kFeatures)
    columns.emplace_back(feature.column);
  for (const char* column : {"kulonlegessegek", "kiegeszitok", "akkumulator"})
    columns.emplace_back(column);
  return columns;
}

// S with every "van" removed, in any letter case: a feature present without a description reads
// "Van", which the yes-image already says.
std::string REMOVEVAN(const std::string& S) {
  return replace_all_ci(S, "van", "");
}

void add_line(std::string& rows, const std::string& line) {
  rows = rows.empty() ? line : rows + "<br />" + line;
}

}  // namespace

std::string GENERATELEIRAS_EGYEBJELLEMZOK(Query& VAR_QUERY, const std::string& IDX,
                                          const std::string& SITE) {
  // The feature row stays open on VAR_QUERY while its lines are translated through this cursor.
  Query translations(VAR_QUERY.connection());
  auto T = [&](const std::string& word) { return GETTRANSLATION(translations, word, SITE); };
  auto labelled = [&](const std::string& label, const std::string& text) {
    const std::string translated = T(label);
    return HTML_STRONG(translated + ": ") + text;
  };

  std::string ICONS;
  std::string ROWS;
  std::string EXTRAS;
  // A failure ends the list; the lines before it stay.
  guard_lookup(VAR_QUERY, [&] {
    if (!open_lookup(VAR_QUERY, statements::product_columns(feature_row_columns(), IDX)))
      return;
    for (const Feature& feature : kFeatures) {
      const std::string value = feature.builder(VAR_QUERY.field_text(feature.column));
      if (value.empty())
        continue;
      if (*feature.icon != '\0' &&
          (*feature.icon_needs == '\0' || contains(value, feature.icon_needs))) {
        if (!ICONS.empty())
          ICONS += "<br /><br />";
        ICONS += search_icon_link(feature.keyword, feature.icon);
      }
      std::string shown = REMOVEVAN(value);
      if (*feature.removed != '\0')
        shown = replace_all_ci(shown, feature.removed, "");
      const std::string yes = HTML_ADDTRUEORFALSEIMAGE(true, translations, SITE);
      add_line(ROWS, yes + " " + labelled(feature.label, shown));
    }

    // The free texts are shown translated, without the yes-image.
    for (const auto& [column, label_word] :
         {std::pair{"kulonlegessegek", "Egyebek"}, std::pair{"kiegeszitok", "Kiegészítõk"}}) {
      const std::string text = VAR_QUERY.field_text(column);
      if (text.empty())
        continue;
      const std::string label = labelled(label_word, "");
      add_line(ROWS, label + T(text));
    }

    // "cells|running time"; without cells the stored text itself leads the line.
    const std::string battery = VAR_QUERY.field_text("akkumulator");
    const StringList parts = split_stored(battery, ITEMDELIMITER);
    std::string line = battery;
    if (!item_or_empty(parts, 0).empty())
      line = labelled("Akkumulátor (cella)", parts[0]);
    const std::string running_time = item_or_empty(parts, 1);
    if (!running_time.empty()) {
      if (!line.empty())
        line += "<br />";
      line += labelled("Üzemidõ", running_time);
    }
    if (!line.empty())
      add_line(ROWS, line);
  });

  // Each later text puts its line break in front of everything gathered so far, as the shop's
  // pages always showed them.
  guard_lookup(VAR_QUERY, [&] {
    if (!open_lookup(VAR_QUERY, statements::extra_texts(IDX, SITE)))
      return;
    for (bool first = true; !VAR_QUERY.eof(); VAR_QUERY.next(), first = false) {
      const std::string text = VAR_QUERY.field_text("ex_text");
      EXTRAS = first ? EXTRAS + text : "<br />" + EXTRAS + text;
    }
  });

  const std::string title = GETTRANSLATION(VAR_QUERY, "Egyéb jellemzõk", SITE);
  std::string value = ROWS;
  if (!EXTRAS.empty()) {
    const std::string more = GETTRANSLATION(VAR_QUERY, "További információk", SITE);
    value += "<br />" + HTML_STRONG(more + ": ") + EXTRAS;
  }
  return GETVAR("megnevezes_szoveg", SITE) + title + ICONS + GETVAR("megnevezes_leiras", SITE) +
         value + GETVAR("leiras_szoveg", SITE);
}

}  // namespace talmo
