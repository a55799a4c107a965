#include "feeds/talmo.h"

#include "app/column_table.h"
#include "app/console.h"
#include "app/file_output.h"
#include "app/run_state.h"

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

void GENERATE_TALMO_HEADER() {
  add_header_row(TALMOP, TALMO_DB, kTalmoColumns);
}

void TALMO2XML() {
  const XmlLayout layout{
      {"<?xml version=\"1.0\" encoding=\"UTF-8\" ?>", "<termeklista>"},
      "\t<termek>",
      talmo_element,
      {"\t\t<szallitas>890</szallitas>", "\t</termek>"},
      "</termeklista>",
  };
  const StringList lines = convert_table_to_xml(TALMOP, layout);
  write_line("Saving File: " + PATH + "export/hu/talmo.xml");
  save_lines(PATH + "export/hu/" + "talmo.xml", lines);
}

}  // namespace talmo
