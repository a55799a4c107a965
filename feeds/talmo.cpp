#include "feeds/talmo.h"

#include "core/console.h"
#include "core/lookup.h"
#include "core/statements.h"
#include "core/system.h"
#include "description/short_description.h"
#include "feeds/feed_loop.h"
#include "feeds/field_values.h"
#include "product/pricing.h"
#include "product/product_links.h"
#include "product/product_name.h"

namespace talmo {
namespace {

// "Szállítási idõ" is spelled with the Latin-1 look-alike "õ", as the feed always had it.
const StringList kTalmoColumns = {"Cikkszám", "Terméknév",  "Termékleírás",   "Bruttó ár",
                                  "Fotólink", "Terméklink", "Szállítási idõ", "Szállítási költség"};

std::optional<std::string> talmo_element(const std::string& name, const std::string& value) {
  auto cdata = [&](const std::string& tag) {
    return "\t\t<" + tag + "><![CDATA[" + value + "]]></" + tag + ">";
  };
  if (name == "Cikkszám")
    return cdata("cikkszam");
  if (name == "Terméknév")
    return cdata("nev");
  if (name == "Termékleírás")
    return cdata("leiras");
  if (name == "Bruttó ár")
    return "\t\t<ar>" + value + "</ar>";
  if (name == "Fotólink")
    return cdata("fotolink");
  if (name == "Terméklink")
    return cdata("termeklink");
  if (name == "Szállítási idõ")
    return cdata("ido");
  return std::nullopt;  // the shipping cost column is kept but written as the fixed line
}

}  // namespace

std::string GENERATE_TALMO_CIKKSZAM(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE) {
  (void)SITE;
  std::string result;
  guard_lookup(VAR_QUERY, [&] {
    if (open_lookup(VAR_QUERY, statements::product_columns({"gyarto", "tipusmegnevezes"}, IDX))) {
      result = trim(VAR_QUERY.field_text("gyarto")) + " " +
               trim(VAR_QUERY.field_text("tipusmegnevezes"));
    }
  });
  return result;
}

std::string GENERATE_TALMO_BRUTTO_AR(Query& VAR_QUERY, const std::string& IDX,
                                     const std::string& SITE) {
  return GENERATE_PRICE_WITH_TAX(VAR_QUERY, IDX, SITE, true, false);
}

std::string GENERATE_TALMO_SZALLITASI_IDO(Query&, const std::string&, const std::string&) {
  return "1 munkanap";
}

std::string GENERATE_TALMO_SZALLITASI_KOLTSEG(Query&, const std::string&, const std::string&) {
  return "890";
}

std::string GENERATE_TALMO_LINE(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE,
                                ColumnTable& TALMOP) {
  const StringList values = field_values(
      {GENERATE_TALMO_CIKKSZAM, GENERATE_TALMO_TERMEKNEV, GENERATE_TALMO_TERMEKLEIRAS_SHORT,
       GENERATE_TALMO_BRUTTO_AR, GENERATE_TALMO_FOTOLINK, GENERATE_TALMO_TERMEKLINK,
       GENERATE_TALMO_SZALLITASI_IDO, GENERATE_TALMO_SZALLITASI_KOLTSEG},
      VAR_QUERY, IDX, SITE);
  add_item_row(TALMOP, values);
  return "";
}

void GENERATE_TALMO_HEADER(ColumnTable& TALMOP) {
  add_header_row(TALMOP, kTalmoColumns);
}

XmlLayout talmo_layout() {
  return XmlLayout{
      {"<?xml version=\"1.0\" encoding=\"UTF-8\" ?>", "<termeklista>"},
      "\t<termek>",
      talmo_element,
      {"\t\t<szallitas>890</szallitas>", "\t</termek>"},
      "</termeklista>",
  };
}

void TALMO2XML(XmlFeedFile& file, const std::string& PATH) {
  file.finish_items();
  write_line("Saving File: " + PATH + "export/hu/talmo.xml");
  file.commit();
}

void GENERATE_TALMO(Query& VAR_QUERY, StringList& list, const std::string& SITE,
                    const std::string& PATH) {
  write_line("Querying list for published items...");
  drop_unpublished(VAR_QUERY, list, "Product with ID: ");
  // With nothing left the previous talmo.xml stays as it is.
  if (list.empty())
    return;
  const std::int64_t start = clock_milliseconds();
  XmlFeedFile file(PATH + "export/hu/" + "talmo.xml", talmo_layout());
  ColumnTable TALMOP;
  file.attach(TALMOP);
  GENERATE_TALMO_HEADER(TALMOP);
  walk_items(VAR_QUERY, list, SITE, "% :: EXPORT :: (Type: TALMO :: Site: ", start, true,
             [&](const std::string& IDX) { GENERATE_TALMO_LINE(VAR_QUERY, IDX, SITE, TALMOP); });
  TALMO2XML(file, PATH);
}

}  // namespace talmo
