#include "description/long_description.h"

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
  return marketplace_description(GENERATE_PRODUCT_DESC(VAR_QUERY, IDX, SITE), SITE);
}

}  // namespace talmo
