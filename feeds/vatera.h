#pragma once

#include <string>

#include "core/database.h"
#include "core/strings.h"
#include "product/product_links.h"  // columns 20 to 23, the four picture addresses

namespace talmo {

// The Vatera columns of one product, each (cursor, product id, site) -> text, named by column
// number and Vatera's column name.

// Fixed upload settings of the shop's Vatera account: seller id "7937228", quantity "5", bid
// increment "0", immediate start "0", duration "1", county "1", country code "506", shipping
// template "11399747", relists "1", highlights "0", attributes "664", page template "0".
std::string GENERATE_VATERA_01_VATERA_AZONOSITO(Query& VAR_QUERY, const std::string& IDX,
                                                const std::string& SITE);
std::string GENERATE_VATERA_04_DARABSZAM(Query& VAR_QUERY, const std::string& IDX,
                                         const std::string& SITE);
std::string GENERATE_VATERA_08_LICITLEPCSO(Query& VAR_QUERY, const std::string& IDX,
                                           const std::string& SITE);
std::string GENERATE_VATERA_09_AUKCIO_INDITASA(Query& VAR_QUERY, const std::string& IDX,
                                               const std::string& SITE);
std::string GENERATE_VATERA_10_AUKCIO_IDOTARTAMA(Query& VAR_QUERY, const std::string& IDX,
                                                 const std::string& SITE);
std::string GENERATE_VATERA_12_MEGYE(Query& VAR_QUERY, const std::string& IDX,
                                     const std::string& SITE);
std::string GENERATE_VATERA_13_ORSZAGKOD(Query& VAR_QUERY, const std::string& IDX,
                                         const std::string& SITE);
std::string GENERATE_VATERA_14_SZALLITASI_SABLON_AZONOSITO(Query& VAR_QUERY, const std::string& IDX,
                                                           const std::string& SITE);
std::string GENERATE_VATERA_15_UJRAINDITASOK_SZAMA(Query& VAR_QUERY, const std::string& IDX,
                                                   const std::string& SITE);
std::string GENERATE_VATERA_16_KIEMELESEK(Query& VAR_QUERY, const std::string& IDX,
                                          const std::string& SITE);
std::string GENERATE_VATERA_17_TERMEKJELLEMZOK(Query& VAR_QUERY, const std::string& IDX,
                                               const std::string& SITE);
std::string GENERATE_VATERA_24_TERMEKKINEZETI_SABLON_AZONOSITO(Query& VAR_QUERY,
                                                               const std::string& IDX,
                                                               const std::string& SITE);

// Columns the shop leaves empty: subtitle, "accept my offer", category-specific properties and
// pictures 5 to 8.
std::string GENERATE_VATERA_03_ALCIM(Query& VAR_QUERY, const std::string& IDX,
                                     const std::string& SITE);
std::string GENERATE_VATERA_19_EN_AJANLATOM_ELFOGADASA(Query& VAR_QUERY, const std::string& IDX,
                                                       const std::string& SITE);
std::string GENERATE_VATERA_26_KATEGORIA_SPECIFIKUS_TULAJDONSAGOK(Query& VAR_QUERY,
                                                                  const std::string& IDX,
                                                                  const std::string& SITE);
std::string GENERATE_VATERA_27_KEPEK5(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);
std::string GENERATE_VATERA_28_KEPEK6(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);
std::string GENERATE_VATERA_29_KEPEK7(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);
std::string GENERATE_VATERA_30_KEPEK8(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);

// The title: the Grando name.
std::string GENERATE_VATERA_02_TERMEK_MEGNEVEZESE(Query& VAR_QUERY, const std::string& IDX,
                                                  const std::string& SITE);
// The Grando discount price raised by another 2 % with a "90" ending. Minimum and buy-now price
// repeat it: the shop sells at one fixed price on Vatera.
std::string GENERATE_VATERA_05_KIKIALTASI_AR(Query& VAR_QUERY, const std::string& IDX,
                                             const std::string& SITE);
std::string GENERATE_VATERA_06_MINIMALIS_AR(Query& VAR_QUERY, const std::string& IDX,
                                            const std::string& SITE);
std::string GENERATE_VATERA_07_VILLAMAR(Query& VAR_QUERY, const std::string& IDX,
                                        const std::string& SITE);
// The Grando category number.
std::string GENERATE_VATERA_11_VATERA_KATEGORIAKOD(Query& VAR_QUERY, const std::string& IDX,
                                                   const std::string& SITE);
// Grando's warranty code ("7", "8" or "9") of the product's warranty text.
std::string GENERATE_VATERA_18_GARANCIA(Query& VAR_QUERY, const std::string& IDX,
                                        const std::string& SITE);
// The product's SKU, e.g. "12345/Asus".
std::string GENERATE_VATERA_25_SAJAT_TERMEK_AZONOSITO(Query& VAR_QUERY, const std::string& IDX,
                                                      const std::string& SITE);
// The marketplace long description (HTML, written as it is).
std::string GENERATE_VATERA_31_LEIRAS(Query& VAR_QUERY, const std::string& IDX,
                                      const std::string& SITE);

// One product's line: the 31 columns in order joined by ";", nothing quoted or escaped, no line
// end of its own.
std::string GENERATE_VATERA_LINE(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE);

// vatera.csv has no header line: this returns "" and the export never calls it.
std::string GENERATE_VATERA_HEADER();

// The Vatera list operation: the published filter, one line per product but clearance items,
// "Saving output file: " and the file PATH + "export/" + SITE + "/vatera.csv" (empty when the
// filter leaves nothing). An empty id list writes nothing.
void GENERATE_VATERA(Query& VAR_QUERY, StringList& list, const std::string& SITE,
                     const std::string& PATH);

}  // namespace talmo
