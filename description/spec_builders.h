#pragma once

#include <string>

namespace talmo {

// Builders turning one stored component column of `laptop_adatbazis` into its one-line text.
// Each trims `INPUT` first and gives "" for blank input. Unless a builder says otherwise, a
// sub-value that must be a number and is not raises ConversionError, and a sub-value position
// that is read but not stored raises ListIndexError.

// A yes/no column ("flag|text|count"): the text, or "Van" prefixed by "count x " when the count
// is above 1; "" when the flag is not 1. A stored text drops the count on purpose.
std::string BUILD(const std::string& INPUT);

// A numbered multi-entry column ("presence|flag|text|count" entries joined by "^"): each
// present entry as "count x text" (or "Van"), joined by " + "; an absent entry still adds its
// " + " separator (e.g. " + HDMI").
std::string BUILD_NUMBERED(const std::string& INPUT);

// The battery column: all its sub-values joined by "+", untouched. Never raises.
std::string BUILD_AKKUMULATOR(const std::string& INPUT);

// Graphics cards ("presence|maker|type|memory|memory type|memory speed|count" entries joined
// by "^"): each present card as "[count x ]maker type memory ...", joined by " + ".
std::string BUILD_GCARD(const std::string& INPUT);

// Hard disks ("presence|size|type|speed|count" entries joined by "^"): each present disk as
// "[count x ]size type speed", joined by " + ".
std::string BUILD_MEREVLEMEZ(const std::string& INPUT);

// Memory ("size|type|clock"): the non-empty sub-values joined by blanks. Missing positions read
// as empty; an empty size leaves a leading blank. Never raises.
std::string BUILD_MEMORY(const std::string& INPUT);

// Display ("size|kind|resolution|LED|matt|touch|extra"): e.g. "15.6 Full HD (1920x1080) LED
// matt". Fewer than seven sub-values raise ListIndexError.
std::string BUILD_KIJELZO(const std::string& INPUT);

// Processor ("maker|type|clock|turbo|cores|cache"): e.g. "Intel Core i5 (4 x 1.6 GHz / 3.4 GHz
// Turbo, 6 MB Cache)"; only maker and type give "AMD A6 " with its trailing blank. Missing
// positions read as empty, and a core count that is not a number just drops the "4 x ".
std::string BUILD_PROCESSZOR(const std::string& INPUT);

}  // namespace talmo
