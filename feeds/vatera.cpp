#include "feeds/vatera.h"

#include <cstddef>

#include "core/console.h"
#include "core/file_output.h"
#include "core/system.h"
#include "feeds/feed_loop.h"
#include "feeds/field_values.h"
#include "feeds/grando.h"

namespace talmo {

std::string GENERATE_VATERA_01_VATERA_AZONOSITO(Query&, const std::string&, const std::string&) {
  return "7937228";
}

std::string GENERATE_VATERA_02_TERMEK_MEGNEVEZESE(Query& VAR_QUERY, const std::string& IDX,
                                                  const std::string& SITE) {
  return GENERATE_GRANDO_NAME(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_VATERA_03_ALCIM(Query&, const std::string&, const std::string&) {
  return "";
}

std::string GENERATE_VATERA_04_DARABSZAM(Query&, const std::string&, const std::string&) {
  return "5";
}

std::string GENERATE_VATERA_05_KIKIALTASI_AR(Query& VAR_QUERY, const std::string& IDX,
                                             const std::string& SITE) {
  return GENERATE_GRANDO_ADDPERCENT(2, GENERATE_GRANDO_DISCOUNT_PRICE(VAR_QUERY, IDX, SITE));
}

std::string GENERATE_VATERA_06_MINIMALIS_AR(Query& VAR_QUERY, const std::string& IDX,
                                            const std::string& SITE) {
  return GENERATE_VATERA_05_KIKIALTASI_AR(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_VATERA_07_VILLAMAR(Query& VAR_QUERY, const std::string& IDX,
                                        const std::string& SITE) {
  return GENERATE_VATERA_05_KIKIALTASI_AR(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_VATERA_08_LICITLEPCSO(Query&, const std::string&, const std::string&) {
  return "0";
}

std::string GENERATE_VATERA_09_AUKCIO_INDITASA(Query&, const std::string&, const std::string&) {
  return "0";
}

std::string GENERATE_VATERA_10_AUKCIO_IDOTARTAMA(Query&, const std::string&, const std::string&) {
  return "1";
}

std::string GENERATE_VATERA_11_VATERA_KATEGORIAKOD(Query& VAR_QUERY, const std::string& IDX,
                                                   const std::string& SITE) {
  return GENERATE_GRANDO_CATEGORY(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_VATERA_12_MEGYE(Query&, const std::string&, const std::string&) {
  return "1";
}

std::string GENERATE_VATERA_13_ORSZAGKOD(Query&, const std::string&, const std::string&) {
  return "506";
}

std::string GENERATE_VATERA_14_SZALLITASI_SABLON_AZONOSITO(Query&, const std::string&,
                                                           const std::string&) {
  return "11399747";
}

std::string GENERATE_VATERA_15_UJRAINDITASOK_SZAMA(Query&, const std::string&, const std::string&) {
  return "1";
}

std::string GENERATE_VATERA_16_KIEMELESEK(Query&, const std::string&, const std::string&) {
  return "0";
}

std::string GENERATE_VATERA_17_TERMEKJELLEMZOK(Query&, const std::string&, const std::string&) {
  return "664";
}

std::string GENERATE_VATERA_18_GARANCIA(Query& VAR_QUERY, const std::string& IDX,
                                        const std::string& SITE) {
  return grando_warranty_code(GENERATE_GRANDO_WARRANTYF(VAR_QUERY, IDX, SITE));
}

std::string GENERATE_VATERA_19_EN_AJANLATOM_ELFOGADASA(Query&, const std::string&,
                                                       const std::string&) {
  return "";
}

std::string GENERATE_VATERA_24_TERMEKKINEZETI_SABLON_AZONOSITO(Query&, const std::string&,
                                                               const std::string&) {
  return "0";
}

std::string GENERATE_VATERA_25_SAJAT_TERMEK_AZONOSITO(Query& VAR_QUERY, const std::string& IDX,
                                                      const std::string& SITE) {
  return GENERATE_PRODUCT_SKU(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_VATERA_26_KATEGORIA_SPECIFIKUS_TULAJDONSAGOK(Query&, const std::string&,
                                                                  const std::string&) {
  return "";
}

std::string GENERATE_VATERA_27_KEPEK5(Query&, const std::string&, const std::string&) {
  return "";
}

std::string GENERATE_VATERA_28_KEPEK6(Query&, const std::string&, const std::string&) {
  return "";
}

std::string GENERATE_VATERA_29_KEPEK7(Query&, const std::string&, const std::string&) {
  return "";
}

std::string GENERATE_VATERA_30_KEPEK8(Query&, const std::string&, const std::string&) {
  return "";
}

std::string GENERATE_VATERA_31_LEIRAS(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE) {
  return GENERATE_GRANDO_DESCRIPTION(VAR_QUERY, IDX, SITE);
}

std::string GENERATE_VATERA_LINE(Query& VAR_QUERY, const std::string& IDX,
                                 const std::string& SITE) {
  // Vatera reads the columns by position; every call runs its statements on the shared cursor
  // in this order.
  const StringList values = field_values({GENERATE_VATERA_01_VATERA_AZONOSITO,
                                          GENERATE_VATERA_02_TERMEK_MEGNEVEZESE,
                                          GENERATE_VATERA_03_ALCIM,
                                          GENERATE_VATERA_04_DARABSZAM,
                                          GENERATE_VATERA_05_KIKIALTASI_AR,
                                          GENERATE_VATERA_06_MINIMALIS_AR,
                                          GENERATE_VATERA_07_VILLAMAR,
                                          GENERATE_VATERA_08_LICITLEPCSO,
                                          GENERATE_VATERA_09_AUKCIO_INDITASA,
                                          GENERATE_VATERA_10_AUKCIO_IDOTARTAMA,
                                          GENERATE_VATERA_11_VATERA_KATEGORIAKOD,
                                          GENERATE_VATERA_12_MEGYE,
                                          GENERATE_VATERA_13_ORSZAGKOD,
                                          GENERATE_VATERA_14_SZALLITASI_SABLON_AZONOSITO,
                                          GENERATE_VATERA_15_UJRAINDITASOK_SZAMA,
                                          GENERATE_VATERA_16_KIEMELESEK,
                                          GENERATE_VATERA_17_TERMEKJELLEMZOK,
                                          GENERATE_VATERA_18_GARANCIA,
                                          GENERATE_VATERA_19_EN_AJANLATOM_ELFOGADASA,
                                          GENERATE_VATERA_20_KEPEK1,
                                          GENERATE_VATERA_21_KEPEK2,
                                          GENERATE_VATERA_22_KEPEK3,
                                          GENERATE_VATERA_23_KEPEK4,
                                          GENERATE_VATERA_24_TERMEKKINEZETI_SABLON_AZONOSITO,
                                          GENERATE_VATERA_25_SAJAT_TERMEK_AZONOSITO,
                                          GENERATE_VATERA_26_KATEGORIA_SPECIFIKUS_TULAJDONSAGOK,
                                          GENERATE_VATERA_27_KEPEK5,
                                          GENERATE_VATERA_28_KEPEK6,
                                          GENERATE_VATERA_29_KEPEK7,
                                          GENERATE_VATERA_30_KEPEK8,
                                          GENERATE_VATERA_31_LEIRAS},
                                         VAR_QUERY, IDX, SITE);
  std::string line;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i > 0)
      line += ";";
    line += values[i];
  }
  return line;
}

std::string GENERATE_VATERA_HEADER() {
  return "";
}

void GENERATE_VATERA(Query& VAR_QUERY, StringList& list, const std::string& SITE,
                     const std::string& PATH) {
  if (list.empty())
    return;
  const std::int64_t start = clock_milliseconds();
  ReplacingFile file(csv_path(PATH, SITE, "vatera.csv"));
  drop_unpublished(VAR_QUERY, list, "Product with id: ");
  walk_items(
      VAR_QUERY, list, SITE, "% :: EXPORT :: (Type: VATERA :: Site: ", start, true,
      [&](const std::string& IDX) { file.write_line(GENERATE_VATERA_LINE(VAR_QUERY, IDX, SITE)); });
  write_line("Saving output file: " + csv_path(PATH, SITE, "vatera.csv"));
  file.commit();
}

}  // namespace talmo
