#include "description/component_sections.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/lookup.h"
#include "core/statements.h"
#include "core/strings.h"
#include "core/text_utils.h"
#include "description/article_links.h"
#include "description/details_table.h"
#include "description/search_icon.h"
#include "description/spec_builders.h"
#include "product/translation.h"

namespace talmo {
namespace {

// The fixed words of one section, all Hungarian and translated when written.
struct SectionText {
  const char* column;          // column of laptop_adatbazis holding the component
  const char* id;              // anchor name and details table id
  std::int32_t table;          // HTML_ADDTABLESTYLING number of the table
  const char* heading;         // paragraph above the table
  const char* header;          // left header cell (numbered per entry for disks and cards)
  const char* title;           // component name in the left wrapper cell
  const std::string* article;  // HU article link, or nullptr for none
};

const SectionText kProcessor{.column = "processzor",
                             .id = "cpu",
                             .table = 0,
                             .heading = "CPU részletei:",
                             .header = "CPU",
                             .title = "Processzor",
                             .article = &PROCESSZOR_LINK};
const SectionText kDisplay{.column = "kijelzo",
                           .id = "display",
                           .table = 1,
                           .heading = "Kijelzõ részletei:",
                           .header = "Kijelzõ",
                           .title = "Kijelzõ",
                           .article = &KIJELZO_LINK};
const SectionText kMemory{.column = "memoria",
                          .id = "memory",
                          .table = 2,
                          .heading = "Memória részletei:",
                          .header = "Memória",
                          .title = "Memória",
                          .article = nullptr};
const SectionText kDisk{.column = "merevlemez",
                        .id = "hdd",
                        .table = 3,
                        .heading = "Merevlemez részletei:",
                        .header = "Merevlemez",
                        .title = "Merevlemez",
                        .article = &MEREVLEMEZ_LINK};
const SectionText kGraphics{.column = "grafikus_kartya",
                            .id = "gcard",
                            .table = 4,
                            .heading = "Grafikus kártya részletei:",
                            .header = "Grafikus kártya",
                            .title = "Grafikus kártya",
                            .article = &GRAFIKUS_KARTYA_LINK};

const LabelAt kProcessorRows[] = {{"Gyártó", 0},       {"Típus", 1},       {"Órajel", 2},
                                  {"Turbó órajel", 3}, {"Magok száma", 4}, {"Gyorsítótár", 5}};
const LabelAt kDisplayValueRows[] = {{"Méret", 0}, {"HD", 1}, {"Felbontás", 2}};
// Shown by their icon alone: "1" means the display has it.
const LabelAt kDisplayFlagRows[] = {{"LED megvilágítás", 3}, {"Matt", 4}, {"TochScreen", 5}};
const LabelAt kMemoryRows[] = {{"Méret", 0}, {"Típus", 1}, {"Órajel", 2}};
const LabelAt kDiskRows[] = {{"Méret", 1}, {"Típus", 2}, {"Sebesség", 3}, {"Darabszám", 4}};
const LabelAt kGraphicsRows[] = {{"Gyártó", 1},       {"Típus", 2},           {"Memóriaméret", 3},
                                 {"Memóriatípus", 4}, {"Memóriasebesség", 5}, {"Darabszám", 6}};

// A brand icon, chosen when the maker mentions `maker` and the type mentions `type` (any type
// when empty). Tables are tried in order and the first match wins.
struct BrandIcon {
  const char* maker;
  const char* type;
  const char* icon;
  const char* keyword;
};

const BrandIcon kProcessorIcons[] = {
    {"intel", "i7", "images/leiras/intel_i7.png", "intel+i7"},
    {"intel", "i5", "images/leiras/intel_i5.png", "intel+i5"},
    {"intel", "i3", "images/leiras/intel_i3.png", "intel+i3"},
    {"intel", "", "images/leiras/intel.png", "intel"},
    {"nvidia", "tegra", "images/leiras/nvidia_tegra.png", "nvidia+tegra"},
    {"nvidia", "", "images/leiras/nvidia.png", "nvidia"},
    {"amd", "", "images/leiras/amd.png", "amd"},
};
const BrandIcon kGraphicsIcons[] = {
    {"nvidia", "", "images/leiras/nvidia.png", "nvidia"},
    {"amd", "radeon", "images/leiras/amd_radeon.png", "amd+radeon"},
    {"amd", "firepro", "images/leiras/amd_firepro.png", "amd+firepro"},
    {"amd", "", "images/leiras/amd.png", "amd"},
    {"intel", "", "images/leiras/intel.png", "intel"},
};

std::string brand_link(std::span<const BrandIcon> icons, const std::string& maker,
                       const std::string& type) {
  for (const BrandIcon& brand : icons) {
    if (contains_ci(maker, brand.maker) && (*brand.type == '\0' || contains_ci(type, brand.type)))
      return search_icon_line(brand.keyword, brand.icon);
  }
  return "";
}

std::string open_table(Query& query, const std::string& SITE, const SectionText& section) {
  return details_open(query, SITE, section.heading, section.id, section.table);
}

// The details block of a one-entry component.
std::string single_details(Query& query, const std::string& SITE, const SectionText& section,
                           const std::vector<DetailsRow>& rows) {
  std::string html = open_table(query, SITE, section);
  html += details_header_row(query, SITE, "", section.header);
  html += details_rows(query, SITE, rows);
  return html + "</table>";
}

// The details block of disks and cards: one numbered header row and its rows per present entry.
// Absent entries are skipped but keep their number, so the numbering can have gaps.
std::string entry_details(Query& query, const std::string& SITE, const SectionText& section,
                          const std::string& stored, std::span<const LabelAt> labels) {
  std::string html = open_table(query, SITE, section);
  const StringList entries = split_stored(stored, ENTRYDELIMITER);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const StringList items = split_stored(entries[i], ITEMDELIMITER);
    if (items[0].empty() || to_integer(items[0]) <= 0)
      continue;
    html += details_header_row(query, SITE, std::to_string(i + 1) + ". ", section.header);
    html += details_rows(query, SITE, value_rows(items, labels));
  }
  return html + "</table>";
}

// What a section shows in its wrapper; each piece is set only once it is complete.
struct SectionParts {
  std::string links;     // brand or search icons after the component name
  std::string one_line;  // the component's one-line text
  std::string details;   // heading paragraph and hidden table
};

// Reads the section's column and lets `fill(found, stored, parts)` set the pieces in order, all
// under one guard: a failure prints the error line and keeps the pieces set before it. The title
// and the article link come after the guard, so a failure never loses them.
template <class Fill>
std::string run_section(Query& query, const std::string& IDX, const std::string& SITE,
                        const SectionText& section, Fill fill) {
  SectionParts parts;
  guard_lookup(query, [&] {
    std::string stored;
    const bool found = open_lookup(query, statements::product_columns({section.column}, IDX));
    if (found)
      stored = query.field_text(section.column);
    fill(found, stored, parts);
  });
  const std::string title = GETTRANSLATION(query, section.title, SITE);
  const std::string article = section.article ? ADDLINK(*section.article, SITE) : "";
  return "<a name=\"" + std::string(section.id) + "\"></a>" + GETVAR("megnevezes_szoveg", SITE) +
         title + parts.links + GETVAR("megnevezes_leiras", SITE) + parts.one_line + article +
         (parts.details.empty() ? "" : "<br />" + parts.details) + GETVAR("leiras_szoveg", SITE);
}

}  // namespace

std::string GENERATELEIRAS_PROCESSZOR(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE) {
  return run_section(
      VAR_QUERY, IDX, SITE, kProcessor,
      [&](bool found, const std::string& stored, SectionParts& parts) {
        const StringList items = split_stored(stored, ITEMDELIMITER);
        parts.one_line = BUILD_PROCESSZOR(stored);
        parts.links = brand_link(kProcessorIcons, item_or_empty(items, 0), item_or_empty(items, 1));
        if (found) {
          parts.details =
              single_details(VAR_QUERY, SITE, kProcessor, value_rows(items, kProcessorRows));
        }
      });
}

std::string GENERATELEIRAS_KIJELZO(Query& VAR_QUERY, const std::string& IDX,
                                   const std::string& SITE) {
  return run_section(
      VAR_QUERY, IDX, SITE, kDisplay,
      [&](bool found, const std::string& stored, SectionParts& parts) {
        const StringList items = split_stored(stored, ITEMDELIMITER);
        const std::string line = BUILD_KIJELZO(stored);
        parts.one_line = line;
        std::string links;
        if (equals_ci(item_or_empty(items, 1), "full hd"))
          links += search_icon_line("full+hd", "images/leiras/fullhd.png");
        if (contains_ci(line, "3d"))
          links += search_icon_line("3d", "images/leiras/3d.png");
        parts.links = links;
        if (!found)
          return;
        std::vector<DetailsRow> rows = value_rows(items, kDisplayValueRows);
        for (const LabelAt& at : kDisplayFlagRows) {
          rows.push_back({at.label, [&items, position = at.position] {
                            return RowValue{item_at(items, position) == "1", ""};
                          }});
        }
        rows.push_back({"3D", [&line] { return RowValue{contains_ci(line, "3D"), ""}; }});
        rows.push_back({"IPS", [&line] { return RowValue{contains_ci(line, "IPS"), ""}; }});
        parts.details = single_details(VAR_QUERY, SITE, kDisplay, rows);
      });
}

std::string GENERATELEIRAS_MEMORY(Query& VAR_QUERY, const std::string& IDX,
                                  const std::string& SITE) {
  return run_section(VAR_QUERY, IDX, SITE, kMemory,
                     [&](bool found, const std::string& stored, SectionParts& parts) {
                       const StringList items = split_stored(stored, ITEMDELIMITER);
                       parts.one_line = BUILD_MEMORY(stored);
                       if (found) {
                         parts.details = single_details(VAR_QUERY, SITE, kMemory,
                                                        value_rows(items, kMemoryRows));
                       }
                     });
}

std::string GENERATELEIRAS_MEREVLEMEZ(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE) {
  return run_section(VAR_QUERY, IDX, SITE, kDisk,
                     [&](bool found, const std::string& stored, SectionParts& parts) {
                       parts.one_line = BUILD_MEREVLEMEZ(stored);
                       if (contains_ci(parts.one_line, "ssd"))
                         parts.links = search_icon_line("ssd", "images/leiras/ssd.png");
                       if (found)
                         parts.details = entry_details(VAR_QUERY, SITE, kDisk, stored, kDiskRows);
                     });
}

std::string GENERATELEIRAS_GCARD(Query& VAR_QUERY, const std::string& IDX,
                                 const std::string& SITE) {
  return run_section(
      VAR_QUERY, IDX, SITE, kGraphics,
      [&](bool found, const std::string& stored, SectionParts& parts) {
        parts.one_line = BUILD_GCARD(stored);
        // The icon follows the first stored card, present or not.
        const StringList first =
            split_stored(split_stored(stored, ENTRYDELIMITER)[0], ITEMDELIMITER);
        parts.links = brand_link(kGraphicsIcons, item_or_empty(first, 1), item_or_empty(first, 2));
        if (found)
          parts.details = entry_details(VAR_QUERY, SITE, kGraphics, stored, kGraphicsRows);
      });
}

}  // namespace talmo
