#include "description/short_description.h"

#include "core/lookup.h"
#include "core/statements.h"
#include "core/strings.h"
#include "description/spec_builders.h"
#include "product/translation.h"

namespace talmo {
namespace {

// The text so far, ready for the next piece: its ";" removed and ", " appended, or "" when
// nothing is left. Only what precedes a piece loses its ";", so the last piece keeps them.
std::string ADDPONTVESSZO(const std::string& S) {
  const std::string text = replace_all_ci(S, ";", "");
  return text.empty() ? "" : text + ", ";
}

}  // namespace

std::string GENERATE_PRODUCT_S_DESC(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE) {
  std::string result;
  guard_lookup(VAR_QUERY, [&] {
    if (!open_lookup(VAR_QUERY,
                     statements::product_columns(
                         {"processzor", "kijelzo", "memoria", "merevlemez", "grafikus_kartya",
                          "optikai_meghajto", "kiegeszitok", "operacios_rendszer"},
                         IDX)))
      return;
    const std::string processzor = VAR_QUERY.field_text("processzor");
    const std::string kijelzo = VAR_QUERY.field_text("kijelzo");
    const std::string memoria = VAR_QUERY.field_text("memoria");
    const std::string merevlemez = VAR_QUERY.field_text("merevlemez");
    const std::string grafikus_kartya = VAR_QUERY.field_text("grafikus_kartya");
    const std::string optikai_meghajto = VAR_QUERY.field_text("optikai_meghajto");
    const std::string kiegeszitok = VAR_QUERY.field_text("kiegeszitok");
    const std::string operacios_rendszer = VAR_QUERY.field_text("operacios_rendszer");

    // Builders run before the translation, which takes over the cursor; a builder error leaves
    // the description empty with the cursor still on this statement for the error line.
    const std::string processor = BUILD_PROCESSZOR(processzor);
    const std::string display = BUILD_KIJELZO(kijelzo);
    const std::string memory = BUILD_MEMORY(memoria);
    const std::string disks = BUILD_MEREVLEMEZ(merevlemez);
    const std::string graphics = BUILD_GCARD(grafikus_kartya);
    const std::string optical = BUILD(optikai_meghajto);
    const std::string os = BUILD_NUMBERED(operacios_rendszer);
    const std::string accessories = GETTRANSLATION(VAR_QUERY, kiegeszitok, SITE);

    const std::string pieces[] = {display, memory, disks, graphics, optical, accessories, os};
    std::string text = processor;
    for (const std::string& piece : pieces) {
      if (!piece.empty())
        text = ADDPONTVESSZO(text) + piece;
    }
    result = text;
  });
  return result;
}

std::string GENERATE_TALMO_TERMEKLEIRAS_SHORT(Query& VAR_QUERY, const std::string& IDX,
                                              const std::string& SITE) {
  return GENERATE_PRODUCT_S_DESC(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_HEUREKASK_DESCRIPTION(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE) {
  return GENERATE_PRODUCT_S_DESC(VAR_QUERY, IDX, SITE);
}

}  // namespace talmo
