#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace talmo {

// Keys compared as the shop's schema compares its text columns (utf8mb4_general_ci), for the
// keys the tool can be certain about. The collation ignores letter case and trailing blanks;
// beyond plain ASCII it also equates letters such as "u" and "ú", which is not reproduced here.

// The form in which two keys compare equal exactly when the database finds them equal: ASCII
// letters in lower case, trailing blanks dropped. nullopt for a key holding anything but
// printable ASCII (a control byte, a byte above 0x7E), whose comparison is left to the server.
std::optional<std::string> comparable_key(std::string_view key);

// The value of an integer id in its canonical decimal form ("0", or digits without a leading
// zero, at most 18 of them): how ids come from the product list. nullopt for an IDX of another
// form (a quote, blanks, letters, leading zeros), which the server compares.
std::optional<std::int64_t> canonical_id_value(std::string_view text);

// The value of an id stored as text and compared with an integer column: plain decimal digits
// (leading zeros allowed, at most 15 of them, so the server's conversion is exact). nullopt for
// anything else (blanks, signs, an empty text), whose conversion is left to the server.
std::optional<std::int64_t> digits_value(std::string_view text);

}  // namespace talmo
