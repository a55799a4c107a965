#pragma once

#include <string>

namespace talmo {

// The first line of arukereso.csv: the eleven column names, each quoted, joined by ",".
std::string GENERATE_ARUKERESO_HEADER();

}  // namespace talmo
