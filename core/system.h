#pragma once

#include <cstdint>
#include <string>

namespace talmo {

// The running executable's full path (from /proc/self/exe, links resolved); "" if unknown.
std::string executable_path();

// The directory of the running executable, ending in "/": where config.dat and export/ live.
std::string executable_directory();

// Milliseconds of the wall clock, the reading elapsed times are measured from.
std::int64_t clock_milliseconds();

}  // namespace talmo
