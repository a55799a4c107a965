#include "feeds/heureka_sk_params.h"

#include "core/lookup.h"
#include "core/statements.h"
#include "description/spec_builders.h"
#include "product/translation.h"

namespace talmo {
namespace {

// Turns one stored column value into the text of its pair.
using ParamFormatter = std::string (*)(Query& VAR_QUERY, const std::string& value,
                                       const std::string& SITE);

template <std::string (*Builder)(const std::string&)>
std::string built(Query&, const std::string& value, const std::string&) {
  return Builder(value);
}

// The warranty is the one value stored as words rather than as a component micro-format.
std::string translated(Query& VAR_QUERY, const std::string& value, const std::string& SITE) {
  return GETTRANSLATION(VAR_QUERY, value, SITE);
}

struct HeurekaParam {
  const char* opening;  // the pair up to its value, the Slovak name included
  const char* column;   // the column of laptop_adatbazis holding the value
  ParamFormatter format;
};

constexpr const char kParamClosing[] = "]]></VAL>";

// In output order: Heureka.sk shows the parameters as listed here.
constexpr HeurekaParam kHeurekaParams[] = {
    {"<PARAM_NAME><![CDATA[Procesor]]></PARAM_NAME><VAL><![CDATA[", "processzor",
     built<BUILD_PROCESSZOR>},
    {"<PARAM_NAME><![CDATA[Displej]]></PARAM_NAME><VAL><![CDATA[", "kijelzo", built<BUILD_KIJELZO>},
    {"<PARAM_NAME><![CDATA[Pamäť]]></PARAM_NAME><VAL><![CDATA[", "memoria", built<BUILD_MEMORY>},
    {"<PARAM_NAME><![CDATA[HDD]]></PARAM_NAME><VAL><![CDATA[", "merevlemez",
     built<BUILD_MEREVLEMEZ>},
    {"<PARAM_NAME><![CDATA[Grafická karta]]></PARAM_NAME><VAL><![CDATA[", "grafikus_kartya",
     built<BUILD_GCARD>},
    {"<PARAM_NAME><![CDATA[Optická mechanika]]></PARAM_NAME><VAL><![CDATA[", "optikai_meghajto",
     built<BUILD>},
    {"<PARAM_NAME><![CDATA[Wifi]]></PARAM_NAME><VAL><![CDATA[", "wifi", built<BUILD>},
    {"<PARAM_NAME><![CDATA[USB]]></PARAM_NAME><VAL><![CDATA[", "usb", built<BUILD_NUMBERED>},
    {"<PARAM_NAME><![CDATA[Čítačka pamäťových kariet]]></PARAM_NAME><VAL><![CDATA[", "kartyaolvaso",
     built<BUILD>},
    {"<PARAM_NAME><![CDATA[HDMI]]></PARAM_NAME><VAL><![CDATA[", "hdmi", built<BUILD>},
    {"<PARAM_NAME><![CDATA[VGA - D-SUB]]></PARAM_NAME><VAL><![CDATA[", "vga", built<BUILD>},
    {"<PARAM_NAME><![CDATA[Webkamera]]></PARAM_NAME><VAL><![CDATA[", "webkamera",
     built<BUILD_NUMBERED>},
    {"<PARAM_NAME><![CDATA[Bluetooth]]></PARAM_NAME><VAL><![CDATA[", "bluetooth", built<BUILD>},
    {"<PARAM_NAME><![CDATA[Lan]]></PARAM_NAME><VAL><![CDATA[", "lan", built<BUILD>},
    {"<PARAM_NAME><![CDATA[Operačný systém]]></PARAM_NAME><VAL><![CDATA[", "operacios_rendszer",
     built<BUILD_NUMBERED>},
    {"<PARAM_NAME><![CDATA[Záruka]]></PARAM_NAME><VAL><![CDATA[", "garancia", translated},
};

}  // namespace

std::string GENERATE_HEUREKASK_PARAM(Query& VAR_QUERY, const std::string& IDX,
                                     const std::string& SITE) {
  std::string result;
  for (const HeurekaParam& param : kHeurekaParams) {
    const std::string column = param.column;
    guard_lookup(
        VAR_QUERY,
        [&] {
          if (!open_lookup(VAR_QUERY, statements::product_columns({column}, IDX)))
            return;
          // Read before formatting: the warranty's translation reuses the cursor.
          const std::string value = VAR_QUERY.field_text(column);
          result += param.opening + param.format(VAR_QUERY, value, SITE) + kParamClosing;
        },
        QueryErrorLine::with_message);
  }
  return result;
}

}  // namespace talmo
