#include "description/long_description.h"

#include "core/console.h"
#include "core/snapshot.h"

#include "description/component_sections.h"
#include "description/description_frame.h"
#include "description/features_section.h"
#include "description/simple_sections.h"

namespace talmo {

std::string GENERATELEIRAS(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE) {
  using Section = std::string (*)(Query&, const std::string&, const std::string&);
  // The order the shop's product pages show the components in.
  static constexpr Section kSections[] = {
      GENERATELEIRAS_PROCESSZOR,     GENERATELEIRAS_KIJELZO,
      GENERATELEIRAS_MEMORY,         GENERATELEIRAS_MEREVLEMEZ,
      GENERATELEIRAS_GCARD,          GENERATELEIRAS_OPTIKAIMEGHAJTO,
      GENERATELEIRAS_EGYEBJELLEMZOK, GENERATELEIRAS_OPERACIOSRENDSZER,
      GENERATELEIRAS_BILLENTYUZET,   GENERATELEIRAS_KESZLET,
      GENERATELEIRAS_GARANCIA,
  };
  std::string description;
  for (Section section : kSections)
    description += section(VAR_QUERY, IDX, SITE);
  return description;
}

std::string GENERATE_PRODUCT_DESC(Query& VAR_QUERY, const std::string& IDX,
                                  const std::string& SITE) {
  return restyle_description(GENERATELEIRAS(VAR_QUERY, IDX, SITE));
}

std::string GENERATE_ARUKERESO_DESCRIPTION(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE) {
  Snapshot* snapshot = VAR_QUERY.connection().snapshot();
  if (snapshot == nullptr)
    return marketplace_description(GENERATE_PRODUCT_DESC(VAR_QUERY, IDX, SITE), SITE);
  // Árukereső, Grando and Vatera carry the same text: inside the snapshot it is built once, and
  // a later feed prints the lines its building printed and leaves the cursor on the same
  // statement, as if it had been built again.
  const std::string key = "marketplace description\n" + SITE + "\n" + IDX;
  if (const Snapshot::BuiltText* built = snapshot->recall(key)) {
    if (!built->console.empty())
      write_text(built->console);
    VAR_QUERY.set_statement(built->last_statement);
    return built->text;
  }
  ConsoleRecording recording;
  std::string text = marketplace_description(GENERATE_PRODUCT_DESC(VAR_QUERY, IDX, SITE), SITE);
  snapshot->remember(key, {text, recording.output(), VAR_QUERY.statement()});
  return text;
}

}  // namespace talmo
