#pragma once

#include <string>

namespace talmo {

// vatera.csv has no header line: this returns "" and the export never calls it.
std::string GENERATE_VATERA_HEADER();

}  // namespace talmo
