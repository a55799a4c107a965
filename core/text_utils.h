#pragma once

#include <cstdint>
#include <string>

#include "core/strings.h"

namespace talmo {

inline constexpr char DELIMITER1 = ',';
inline constexpr char DELIMITER2 = '~';  // the quote of ADDTEXTDELIMITER
inline constexpr char DELIMITER3 = ';';
inline constexpr char ENTRYDELIMITER = '^';  // between repeated entries of a stored component
inline constexpr char ITEMDELIMITER = '|';   // between the sub-values of one entry

// Host name of the shop for a site code ("hu", "sk", "cz" in any case); "" for any other code.
std::string GETSITENAME(const std::string& SITE);
// The shop's base address, "https://" + host name, never with a trailing "/".
std::string GETSITEURL(const std::string& SITE);

// Clears LIST and fills it with the pieces of S between DELIMITER characters. k delimiters give
// k + 1 pieces, empty pieces kept; only the last piece is trimmed, as the stored data expects.
void STRINGEXTRACT(std::string S, StringList& LIST, char DELIMITER);
// STRINGEXTRACT into a new list.
StringList split_stored(const std::string& S, char DELIMITER);

// Non-overlapping occurrences of SUBTEXT in TEXT; 0 when either is empty.
std::int32_t COUNTOCCURENCES(const std::string& SUBTEXT, const std::string& TEXT);

// Turns a stored price text into a plain decimal with "." ("1.234.567,89" gives "1234567.89").
// Empty text and the "kalkul" marker of a price still to be calculated give "0". The result is
// not checked to be a number.
std::string MAKEVALIDNUMERICVALUE(std::string S);

char GETITEMDELIMITER();
char GETENTRYDELIMITER();

// Opening ("megnevezes_szoveg"), middle ("megnevezes_leiras") and closing ("leiras_szoveg")
// HTML of one label/value row of the long description for a site; "" for anything else.
std::string GETVAR(const std::string& NAME, const std::string& SITE);

// CSV quoting: every double quote doubled, the whole wrapped in double quotes.
std::string ADDTEXTDELIMITER2(const std::string& S);
// "~" + S + "~", no escaping.
std::string ADDTEXTDELIMITER(const std::string& S);

}  // namespace talmo
