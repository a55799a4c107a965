#include "app/export_pipeline.h"

#include <functional>

#include "app/console.h"
#include "app/file_output.h"
#include "app/lookup.h"
#include "app/progress.h"
#include "app/run_state.h"
#include "feeds/arukereso.h"
#include "feeds/grando.h"
#include "feeds/heureka_sk.h"
#include "feeds/talmo.h"
#include "feeds/vatera.h"

namespace talmo {
namespace {

// Builds one item of a feed from its product id.
using ItemBuilder = std::function<void(const std::string& IDX)>;

// Deletes unpublished ids in place, announcing each id with `prefix`.
void drop_unpublished(Query& query, StringList& list, const std::string& prefix) {
  std::size_t i = 0;
  while (i < list.size()) {
    if (!PRODUCTPUBLISHED(query, list[i])) {
      write_line(prefix + list[i] + " - Not published");
      list.erase(list.begin() + static_cast<std::ptrdiff_t>(i));
    } else {
      write_line(prefix + list[i] + " - Published");
      ++i;
    }
  }
}

// The per-item loop: a progress line for every item, then the item unless it is a clearance
// item of a feed that leaves those to Grando.
void walk_items(Query& query, const StringList& list, const std::string& site,
                const std::string& label, std::int64_t start_ms, bool skip_grando_only,
                const ItemBuilder& build_item) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    write_line(progress_line(label, site, static_cast<std::int64_t>(i),
                             static_cast<std::int64_t>(list.size()), start_ms,
                             clock_milliseconds()));
    if (skip_grando_only && ISONLYFORGRANDO(query, list[i]))
      continue;
    build_item(list[i]);
  }
}

std::string csv_path(const std::string& site, const std::string& file) {
  return PATH + "export/" + lower_ascii(site) + "/" + file;
}

void run_export(const std::string& site, const std::string& starting_line,
                const std::string& finishing_line,
                void (*list_operation)(Query&, StringList&, const std::string&)) {
  // The id list lives for this export only, also when an error passes through.
  struct ClearOnExit {
    ~ClearOnExit() { FULL_LIST.clear(); }
  } clear_on_exit;
  Query& query = *QUERY;
  FULL_LIST.clear();
  query.set_sql("SELECT id FROM laptop_adatbazis ORDER BY id DESC;");
  try {
    query.open();
    query.last();
    if (query.record_count() > 0) {
      query.first();
      while (!query.eof()) {
        FULL_LIST.push_back(query.field_text("id"));
        write_line("Allready added: " + std::to_string(FULL_LIST.size()));
        query.next();
      }
    }
    query.close();
  } catch (const TalmoError& error) {
    write_line(query.sql_text() + "|" + error.what());
  }
  write_line(starting_line);
  list_operation(query, FULL_LIST, site);
  write_line(finishing_line);
  query.close();
}

}  // namespace

bool PRODUCTPUBLISHED(Query& VAR_QUERY, const std::string& IDX) {
  bool published = false;
  guard_lookup(VAR_QUERY, [&] {
    if (open_lookup(VAR_QUERY, "SELECT published FROM laptop_adatbazis WHERE id='" + IDX + "';")) {
      published = VAR_QUERY.field_bool("published");
    }
  });
  return published;
}

bool ISONLYFORGRANDO(Query& VAR_QUERY, const std::string& IDX) {
  bool clearance = false;
  guard_lookup(VAR_QUERY, [&] {
    if (open_lookup(VAR_QUERY, "SELECT sorszam FROM laptop_adatbazis WHERE id='" + IDX + "';")) {
      clearance = contains(upper_ascii(VAR_QUERY.field_text("sorszam")), "AKC");
    }
  });
  return clearance;
}

void DO_EXPORT_TALMO() {
  run_export("hu", "Starting Generate_TALMO...", "Finished Generate_TALMO...", GENERATE_TALMO);
}

void DO_EXPORT_ARUKERESO() {
  run_export("hu", "Starting Generate_ARUKERESO...", "Finished Generate_ARUKERESO...",
             GENERATE_ARUKERESO);
}

// Grando announces itself with the Árukereső lines; the operators know the output so.
void DO_EXPORT_GRANDO() {
  run_export("hu", "Starting Generate_ARUKERESO...", "Finished Generate_ARUKERESO...",
             GENERATE_GRANDO);
}

void DO_EXPORT_VATERA() {
  run_export("hu", "Starting Generate_VATERA...", "Finished Generate_VATERA...", GENERATE_VATERA);
}

void DO_EXPORT_HEUREKASK() {
  run_export("sk", "Starting Generate_HEUREKA.SK...", "Finished Generate_HEUREKA.SK...",
             GENERATE_HEUREKA_SK);
}

void GENERATE_TALMO(Query& VAR_QUERY, StringList& list, const std::string& SITE) {
  write_line("Querying list for published items...");
  drop_unpublished(VAR_QUERY, list, "Product with ID: ");
  // With nothing left the previous talmo.xml stays as it is.
  if (list.empty())
    return;
  const std::int64_t start = clock_milliseconds();
  TALMO_DB = 0;
  OSZLOP_DB = 0;
  GENERATE_TALMO_HEADER();
  walk_items(VAR_QUERY, list, SITE, "% :: EXPORT :: (Type: TALMO :: Site: ", start, true,
             [&](const std::string& IDX) { GENERATE_TALMO_LINE(VAR_QUERY, IDX, SITE); });
  TALMO2XML();
}

void GENERATE_ARUKERESO(Query& VAR_QUERY, StringList& list, const std::string& SITE) {
  if (list.empty())
    return;
  const std::int64_t start = clock_milliseconds();
  StringList lines{GENERATE_ARUKERESO_HEADER()};
  drop_unpublished(VAR_QUERY, list, "Product with id: ");
  walk_items(VAR_QUERY, list, SITE, "% :: EXPORT :: (Type: ARUKERESO :: Site: ", start, true,
             [&](const std::string& IDX) {
               lines.push_back(GENERATE_ARUKERESO_LINE(VAR_QUERY, IDX, SITE));
             });
  save_lines(csv_path(SITE, "arukereso.csv"), lines);
}

void GENERATE_GRANDO(Query& VAR_QUERY, StringList& list, const std::string& SITE) {
  if (list.empty())
    return;
  GRANDO_DB = 0;
  OSZLOP_DB = 0;
  GENERATE_GRANDO_HEADER();
  drop_unpublished(VAR_QUERY, list, "Product with id: ");
  const std::int64_t start = clock_milliseconds();
  // Clearance items stay in: Grando is the feed that carries them.
  walk_items(VAR_QUERY, list, SITE, "% :: EXPORT :: (Type: GRANDO :: Site: ", start, false,
             [&](const std::string& IDX) { GENERATE_GRANDO_LINE(VAR_QUERY, IDX, SITE); });
  GRANDO2XML();
}

void GENERATE_VATERA(Query& VAR_QUERY, StringList& list, const std::string& SITE) {
  if (list.empty())
    return;
  const std::int64_t start = clock_milliseconds();
  StringList lines;
  drop_unpublished(VAR_QUERY, list, "Product with id: ");
  walk_items(
      VAR_QUERY, list, SITE, "% :: EXPORT :: (Type: VATERA :: Site: ", start, true,
      [&](const std::string& IDX) { lines.push_back(GENERATE_VATERA_LINE(VAR_QUERY, IDX, SITE)); });
  write_line("Saving output file: " + csv_path(SITE, "vatera.csv"));
  save_lines(csv_path(SITE, "vatera.csv"), lines);
}

void GENERATE_HEUREKA_SK(Query& VAR_QUERY, StringList& list, const std::string& SITE) {
  if (list.empty())
    return;
  const std::int64_t start = clock_milliseconds();
  HEUREKASK_DB = 0;
  OSZLOP_DB = 0;
  GENERATE_HEUREKASK_HEADER();
  drop_unpublished(VAR_QUERY, list, "Product with id: ");
  walk_items(VAR_QUERY, list, SITE,
             "% :: EXPORT :: Progress windows (Type: HEUREKA.SK :: Site: ", start, false,
             [&](const std::string& IDX) { GENERATE_HEUREKASK_LINE(VAR_QUERY, IDX, SITE); });
  HEUREKASK2XML();
}

}  // namespace talmo
