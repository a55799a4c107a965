#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talmo {

// An ordered list of texts: split stored values, id lists, output lines.
using StringList = std::vector<std::string>;

// Letter case is folded for ASCII letters only; accented letters are compared and kept as they
// are, because the shop's stored texts mix UTF-8 and Latin-1 look-alikes.
std::string upper_ascii(std::string_view text);
std::string lower_ascii(std::string_view text);
bool equals_ci(std::string_view a, std::string_view b);
bool contains(std::string_view text, std::string_view part);
bool contains_ci(std::string_view text, std::string_view part);

// Removes blanks and control characters (bytes up to 0x20) at both ends, nothing else.
std::string trim(std::string_view text);

// Replaces every occurrence of `from`, scanning left to right without re-reading replaced text.
// An empty `from` leaves the text unchanged.
std::string replace_all(std::string_view text, std::string_view from, std::string_view to);
std::string replace_all_ci(std::string_view text, std::string_view from, std::string_view to);

// The element at `index`; a missing position raises ListIndexError.
const std::string& item_at(const StringList& list, std::size_t index);
// The element at `index`, or empty text when the list is shorter.
std::string item_or_empty(const StringList& list, std::size_t index);

// A whole text read as a 32-bit integer: optional sign and decimal digits only, nothing else.
// Anything else (blanks, empty text, out of range) gives no value.
std::optional<std::int32_t> parse_integer(std::string_view text);
// A whole text read as a number: optional sign, digits, optionally "." and at least one digit,
// optionally an exponent. "12." and ".5" give no value, as does anything else and a value beyond
// the double range ("1e400"); a value too small reads as the nearest double ("1e-400" is 0).
std::optional<double> parse_number(std::string_view text);

// parse_integer and parse_number for texts that must be numbers: no value raises
// ConversionError, which a lookup guard reports as the lookup's failure.
std::int32_t to_integer(std::string_view text);
double to_number(std::string_view text);

}  // namespace talmo
