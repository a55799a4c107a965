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

// Translations for the features' lines, made through their own cursor: the feature row stays
// open on the shared one while they run.
class LineTexts {
 public:
  LineTexts(Query& shared, const std::string& SITE)
      : translations_(shared.connection()), site_(SITE) {}

  std::string translated(const std::string& word) {
    return GETTRANSLATION(translations_, word, site_);
  }
  // The translated label in bold with its colon, then `text`.
  std::string labelled(const std::string& label, const std::string& text) {
    const std::string word = translated(label);
    return HTML_STRONG(word + ": ") + text;
  }
  std::string yes_image() { return HTML_ADDTRUEORFALSEIMAGE(true, translations_, site_); }

 private:
  Query translations_;
  const std::string& site_;
};

// One line per present port or extra, each with the yes-image; the search icons of the present
// ones are gathered in ICONS.
void add_feature_lines(const Query& row, LineTexts& texts, std::string& ICONS, std::string& ROWS) {
  for (const Feature& feature : kFeatures) {
    const std::string value = feature.builder(row.field_text(feature.column));
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
    const std::string yes = texts.yes_image();
    add_line(ROWS, yes + " " + texts.labelled(feature.label, shown));
  }
}

// The free texts, shown translated, without the yes-image.
void add_free_text_lines(const Query& row, LineTexts& texts, std::string& ROWS) {
  for (const auto& [column, label_word] :
       {std::pair{"kulonlegessegek", "Egyebek"}, std::pair{"kiegeszitok", "Kiegészítõk"}}) {
    const std::string text = row.field_text(column);
    if (text.empty())
      continue;
    const std::string label = texts.labelled(label_word, "");
    add_line(ROWS, label + texts.translated(text));
  }
}

// The battery, stored as "cells|running time"; without cells the stored text itself leads the
// line.
void add_battery_line(const Query& row, LineTexts& texts, std::string& ROWS) {
  const std::string battery = row.field_text("akkumulator");
  const StringList parts = split_stored(battery, ITEMDELIMITER);
  std::string line = battery;
  if (!item_or_empty(parts, 0).empty())
    line = texts.labelled("Akkumulátor (cella)", parts[0]);
  const std::string running_time = item_or_empty(parts, 1);
  if (!running_time.empty()) {
    if (!line.empty())
      line += "<br />";
    line += texts.labelled("Üzemidõ", running_time);
  }
  if (!line.empty())
    add_line(ROWS, line);
}

// The product's extra texts for the site. Each later text puts its line break in front of
// everything gathered so far, as the shop's pages always showed them.
std::string extra_texts(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE) {
  std::string EXTRAS;
  guard_lookup(VAR_QUERY, [&] {
    if (!open_lookup(VAR_QUERY, statements::extra_texts(IDX, SITE)))
      return;
    for (bool first = true; !VAR_QUERY.eof(); VAR_QUERY.next(), first = false) {
      const std::string text = VAR_QUERY.field_text("ex_text");
      EXTRAS = first ? EXTRAS + text : "<br />" + EXTRAS + text;
    }
  });
  return EXTRAS;
}

}  // namespace

std::string GENERATELEIRAS_EGYEBJELLEMZOK(Query& VAR_QUERY, const std::string& IDX,
                                          const std::string& SITE) {
  LineTexts texts(VAR_QUERY, SITE);
  std::string ICONS;
  std::string ROWS;
  // A failure ends the list; the lines before it stay.
  guard_lookup(VAR_QUERY, [&] {
    if (!open_lookup(VAR_QUERY, statements::product_columns(feature_row_columns(), IDX)))
      return;
    add_feature_lines(VAR_QUERY, texts, ICONS, ROWS);
    add_free_text_lines(VAR_QUERY, texts, ROWS);
    add_battery_line(VAR_QUERY, texts, ROWS);
  });
  const std::string EXTRAS = extra_texts(VAR_QUERY, IDX, SITE);

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
