#pragma once

#include <cstdint>
#include <string>

namespace talmo {

// Nearest integer, ties to even (2.5 gives 2, 3.5 gives 4), as a double.
double round_half_even(double value);

// round_half_even as a 32-bit integer; a value that does not fit (or is not finite) raises
// ConversionError, so an absurd price aborts its computation instead of wrapping around.
std::int32_t round_to_int32(double value);

// The gross price before rounding: the four factors multiplied in double, in this order, then
// `discount` subtracted and `extra_profit` added in extended precision and stored as a double.
// A result that is not finite raises ConversionError.
double combine_price(double net, double tax, double rate, double margin, double discount,
                     double extra_profit);

// Forint ending: `rounded` written in decimal ends in 90 within its own hundred (123456 and
// 123401 give 123490, 99995 gives 99990). A single-digit text is read as "0d", so 0 to 9 give 90;
// a negative text keeps its "-" and only its last two characters are looked at (-5 stays -5).
double forint_ending(std::int32_t rounded);

// Euro ending: the nearest whole euro plus 0.90 (10.40 gives 10.9, 10.60 gives 11.9). The cents
// are measured against the rounded amount, so the "above 90 cents" branch is kept but unreachable.
double euro_ending(double calculated);

// The site's price ending: "hu" forint_ending of the rounded price, "sk" euro_ending, "cz" the
// whole crown, any other site code unrounded. Raises ConversionError like round_to_int32.
double round_for_site(double calculated, const std::string& SITE);

// The general shortest form of a number: at most 15 significant figures, no trailing zeros, "."
// as decimal point, never a thousands separator or an exponent (123490, 11.9, 0.9, -5090,
// 1000000000000000). Zero of either sign gives "0"; non-finite values give "INF", "-INF", "NAN".
std::string format_general(double value);

}  // namespace talmo
