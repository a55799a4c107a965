#include "app/exports.h"

#include "core/console.h"
#include "core/lookup.h"
#include "core/statements.h"
#include "feeds/arukereso.h"
#include "feeds/grando.h"
#include "feeds/heureka_sk.h"
#include "feeds/talmo.h"
#include "feeds/vatera.h"

namespace talmo {
namespace {

using ListOperation = void (*)(Query& VAR_QUERY, StringList& list, const std::string& SITE,
                               const std::string& PATH);

// Every product id, newest first, with a counting line per id.
void list_product_ids(Query& query, StringList& ids) {
  query.set_statement(statements::product_ids());
  guard_lookup(
      query,
      [&] {
        query.open();
        query.last();
        if (query.record_count() > 0) {
          query.first();
          while (!query.eof()) {
            ids.push_back(query.field_text("id"));
            write_line("Allready added: " + std::to_string(ids.size()));
            query.next();
          }
        }
        query.close();
      },
      QueryErrorLine::id_list);
}

void run_export(RunContext& run, const std::string& site, const std::string& starting_line,
                const std::string& finishing_line, ListOperation list_operation) {
  // The id list lives for this export only, also when an error passes through.
  struct ClearOnExit {
    StringList& list;
    ~ClearOnExit() { list.clear(); }
  } clear_on_exit{run.FULL_LIST};
  Query& query = *run.QUERY;
  run.FULL_LIST.clear();
  list_product_ids(query, run.FULL_LIST);
  write_line(starting_line);
  list_operation(query, run.FULL_LIST, site, run.PATH);
  write_line(finishing_line);
  query.close();
}

constexpr ExportChoice kExportChoices[] = {
    {"Start TALMO export? (y/n): ", &RunContext::DO_TALMO, "Beginning TALMO export",
     "TALMO export skipped", "export/hu/talmo.xml", DO_EXPORT_TALMO},
    {"Start ARUKERESO export? (y/n): ", &RunContext::DO_ARUKERESO, "Beginning ARUKERESO export",
     "ARUKERESO export skipped", "export/hu/arukereso.csv", DO_EXPORT_ARUKERESO},
    {"Start GRANDO export? (y/n): ", &RunContext::DO_GRANDO, "Beginning GRANDO export",
     "GRANDO export skipped", "export/hu/grando.xml", DO_EXPORT_GRANDO},
    {"Start VATERA export? (y/n): ", &RunContext::DO_VATERA, "Beginning VATERA export",
     "VATERA export skipped", "export/hu/vatera.csv", DO_EXPORT_VATERA},
    {"Start HEUREKA.SK export? (y/n): ", &RunContext::DO_HEUREKASK, "Beginning HEUREKA.SK export",
     "HEUREKA.SK export skipped", "export/sk/heureka.xml", DO_EXPORT_HEUREKASK},
};

}  // namespace

std::span<const ExportChoice> export_choices() {
  return kExportChoices;
}

void DO_EXPORT_TALMO(RunContext& run) {
  run_export(run, "hu", "Starting Generate_TALMO...", "Finished Generate_TALMO...", GENERATE_TALMO);
}

void DO_EXPORT_ARUKERESO(RunContext& run) {
  run_export(run, "hu", "Starting Generate_ARUKERESO...", "Finished Generate_ARUKERESO...",
             GENERATE_ARUKERESO);
}

// Grando announces itself with the Árukereső lines; the operators know the output so.
void DO_EXPORT_GRANDO(RunContext& run) {
  run_export(run, "hu", "Starting Generate_ARUKERESO...", "Finished Generate_ARUKERESO...",
             GENERATE_GRANDO);
}

void DO_EXPORT_VATERA(RunContext& run) {
  run_export(run, "hu", "Starting Generate_VATERA...", "Finished Generate_VATERA...",
             GENERATE_VATERA);
}

void DO_EXPORT_HEUREKASK(RunContext& run) {
  run_export(run, "sk", "Starting Generate_HEUREKA.SK...", "Finished Generate_HEUREKA.SK...",
             GENERATE_HEUREKA_SK);
}

}  // namespace talmo
