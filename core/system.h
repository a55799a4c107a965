#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace talmo {

// The running executable's full path (from /proc/self/exe, links resolved); "" if unknown.
std::string executable_path();

// The directory of the running executable, ending in "/": where config.dat and export/ live.
std::string executable_directory();

// The value of the process's environment variable `name`, or nullopt when it is not set.
std::optional<std::string> environment_variable(const char* name);

// Milliseconds of the wall clock, the reading elapsed times are measured from.
std::int64_t clock_milliseconds();

}  // namespace talmo
