#include "product/pricing.h"

#include "core/lookup.h"
#include "core/statements.h"
#include "core/strings.h"
#include "core/text_utils.h"
#include "product/price_rounding.h"

namespace talmo {
namespace {

struct KeyValue {
  const char* key;
  const char* value;
};

// Supplier name keys in test order; every contained key overwrites the country, so the last hit
// wins ("Ingram Micro SK" is Hungarian).
constexpr KeyValue kWarehouseCountries[] = {
    {"agem", "SK"},
    {"ed system", "SK"},
    {"atc", "SK"},
    {"datacomp", "SK"},
    {"asbis", "SK"},
    {"alza", "SK"},
    {"semleges", "SK"},
    {"asus-shop", "SK"},
    {"ipon", "HU"},
    {"pc-planet", "HU"},
    {"united trading", "HU"},
    {"mofo hungary", "HU"},
    {"extreme digital", "HU"},
    {"aviatronic", "HU"},
    {"A&T Investments", "HU"},
    {"hrp", "HU"},
    {"ramiris", "HU"},
    {"expert", "HU"},
    {"CHS", "HU"},
    {"pcland", "HU"},
    {"ingram micro", "HU"},
    {"laptopszaki", "HU"},
    {"maktorex", "HU"},
    {"notebooksbilliger.de", "DE"},
    {"cyberport.de", "DE"},
    {"alternate.de", "DE"},
    {"computeruniverse.net", "DE"},
};

constexpr KeyValue kCountryCurrencies[] = {
    {"HU", "HUF"},
    {"SK", "EUR"},
    {"CZ", "CZK"},
    {"DE", "EUR"},
};

// Net price and the site's discount and extra-profit texts of one product.
struct ProductAmounts {
  double AR = 0;
  std::string KEDV = "0";
  std::string TNYERESEG = "0";
};

// A stored rate or percent read as a number; raises ConversionError.
double stored_number(const std::string& text) {
  return to_number(MAKEVALIDNUMERICVALUE(trim(text)));
}

// The site's item of a stored "hu|sk|cz" amount list, cleaned; a missing or empty item is "0".
// For another site code the whole stored text is kept.
std::string site_amount(const std::string& stored, const std::string& SITE) {
  std::size_t index;
  if (SITE == "hu")
    index = 0;
  else if (SITE == "sk")
    index = 1;
  else if (SITE == "cz")
    index = 2;
  else
    return stored;
  const std::string amount =
      MAKEVALIDNUMERICVALUE(item_or_empty(split_stored(stored, ITEMDELIMITER), index));
  return amount.empty() ? "0" : amount;
}

std::string product_currency(Query& VAR_QUERY, const std::string& IDX) {
  std::string VALUTA = "EUR";
  guard_lookup(VAR_QUERY, [&] {
    if (open_lookup(VAR_QUERY, statements::product_currency(IDX))) {
      VALUTA = VAR_QUERY.field_text("prod_val_valuta");
    }
  });
  return VALUTA;
}

double exchange_rate(Query& VAR_QUERY, const std::string& VALUTA, const std::string& SITE) {
  double ARFOLYAM = 1.0;
  guard_lookup(VAR_QUERY, [&] {
    if (open_lookup(VAR_QUERY,
                    statements::exchange_rate(VALUTA, GETVALUTAFROMCOUNTRY(upper_ascii(SITE))))) {
      ARFOLYAM = stored_number(VAR_QUERY.field_text("er_value"));
    }
  });
  return ARFOLYAM;
}

double profit_margin(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE) {
  double PROFIT_MARGIN = 1.0;
  const std::string country = GETCOUNTRYFROMWAREHOUSE(VAR_QUERY, IDX, "");
  guard_lookup(VAR_QUERY, [&] {
    if (open_lookup(VAR_QUERY, statements::profit_margin(country, upper_ascii(SITE)))) {
      PROFIT_MARGIN = 1 + stored_number(VAR_QUERY.field_text("profit_value")) / 100;
    }
  });
  return PROFIT_MARGIN;
}

ProductAmounts product_amounts(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE,
                               bool USE_OLD_PRICE) {
  ProductAmounts amounts;
  guard_lookup(VAR_QUERY, [&] {
    if (!open_lookup(VAR_QUERY, statements::price_amounts(IDX))) {
      return;
    }
    const std::string net =
        VAR_QUERY.field_text(USE_OLD_PRICE ? "netto_darabar" : "uj_netto_darabar");
    amounts.AR = to_number(MAKEVALIDNUMERICVALUE(net));
    amounts.KEDV = site_amount(VAR_QUERY.field_text("kedvezmenyek"), SITE);
    amounts.TNYERESEG = site_amount(VAR_QUERY.field_text("tobbletnyeresegek"), SITE);
  });
  return amounts;
}

// Steps after the fixed price. A tax, discount or extra-profit text that is not a number raises,
// which aborts the whole computation in the caller's guard.
std::string calculated_price(Query& VAR_QUERY, const std::string& IDX, const std::string& SITE,
                             bool USE_OLD_PRICE) {
  const double TAX = to_integer(GENERATE_PRODUCT_TAX(VAR_QUERY, IDX, SITE)) / 100.0 + 1;
  const std::string VALUTA = product_currency(VAR_QUERY, IDX);
  const double ARFOLYAM = exchange_rate(VAR_QUERY, VALUTA, SITE);
  const double PROFIT_MARGIN = profit_margin(VAR_QUERY, IDX, SITE);
  const ProductAmounts amounts = product_amounts(VAR_QUERY, IDX, SITE, USE_OLD_PRICE);
  const double discount = to_number(amounts.KEDV);
  const double extra_profit = to_number(amounts.TNYERESEG);
  const double CALCULATED =
      combine_price(amounts.AR, TAX, ARFOLYAM, PROFIT_MARGIN, discount, extra_profit);
  return format_general(round_for_site(CALCULATED, SITE));
}

}  // namespace

std::string GENERATE_PRICE_WITH_TAX(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& SITE, bool CHECK_FIX_AR,
                                    bool USE_OLD_PRICE) {
  std::string result = "0";
  bool NINCS_FIX = true;
  const std::string fix_column = "fix_ar_" + SITE;
  guard_lookup(VAR_QUERY, [&] {
    if (!open_lookup(VAR_QUERY, statements::fixed_price(SITE, IDX))) {
      return;
    }
    const std::string fixed = VAR_QUERY.field_text(fix_column);
    NINCS_FIX = fixed == "0";
    if (!NINCS_FIX)
      result = MAKEVALIDNUMERICVALUE(fixed);
  });
  if (!CHECK_FIX_AR)
    NINCS_FIX = true;
  if (!NINCS_FIX)
    return result;
  // An aborted computation leaves "0", or the fixed price that CHECK_FIX_AR set aside.
  guard_lookup(VAR_QUERY, [&] { result = calculated_price(VAR_QUERY, IDX, SITE, USE_OLD_PRICE); });
  return result;
}

std::string GENERATE_PRODUCT_TAX(Query& VAR_QUERY, [[maybe_unused]] const std::string& IDX,
                                 const std::string& SITE) {
  return lookup_text(VAR_QUERY, statements::tax(SITE), "tax_value");
}

std::string GETVALUTAFROMCOUNTRY(const std::string& COUNTRY) {
  for (const KeyValue& entry : kCountryCurrencies) {
    if (COUNTRY == entry.key)
      return entry.value;
  }
  return "";
}

std::string GETCOUNTRYFROMWAREHOUSE(Query& VAR_QUERY, const std::string& IDX,
                                    const std::string& INPUT) {
  const std::string RAKTAR =
      INPUT.empty()
          ? lookup_text(VAR_QUERY, statements::product_columns({"nagyraktar"}, IDX), "nagyraktar")
          : INPUT;
  std::string result = "SK";
  for (const KeyValue& entry : kWarehouseCountries) {
    if (contains_ci(RAKTAR, entry.key))
      result = entry.value;
  }
  return result;
}

}  // namespace talmo
