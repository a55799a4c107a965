#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "feedcheck/feed_item.h"
#include "feedcheck/problems.h"

namespace talmo::feedcheck {

// How a feed writes its prices.
struct PriceRule {
  // The texts a price takes when the export could not compute it ("0" and "90" in forint).
  std::vector<std::string_view> not_computed;
  bool decimal_comma = false;  // "," may stand for the decimal point
  int max_decimals = -1;       // at most this many figures after it; -1 for any number
};

// Forint prices of the Hungarian feeds and euro prices of Heureka.sk, as the export writes them.
const PriceRule& forint_prices();
const PriceRule& euro_prices();

// The number of characters of a UTF-8 text (each byte that does not continue a character).
std::size_t character_count(std::string_view text);

// Whether `text` starts with "http://" or "https://".
bool is_web_address(std::string_view text);

// The price as a number ("," read as "."), nullopt when it is not one.
std::optional<double> price_value(std::string_view text);

// Each check adds what it finds about `field` (named `label` in the report) to `findings`.

// An empty value is a missing value. Returns whether the value is there.
bool check_present(const Field* field, const std::string& label, std::vector<Finding>& findings);
// A price that is empty, not computed, not a number, negative, zero, or with too many decimals.
void check_price(const Field* field, const std::string& label, const PriceRule& rule,
                 std::vector<Finding>& findings);
// A present value that is not a web address, or (when `no_blanks`) holds a blank.
void check_address(const Field* field, const std::string& label, bool no_blanks,
                   std::vector<Finding>& findings);
// A value of more than `limit` characters.
void check_length(const Field* field, const std::string& label, std::size_t limit,
                  std::vector<Finding>& findings);

}  // namespace talmo::feedcheck
