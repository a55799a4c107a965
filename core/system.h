#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace talmo {

// The running executable's full path (from /proc/self/exe, links resolved); "" if unknown.
std::string executable_path();

// The directory of the running executable, ending in "/": where config.dat and export/ live.
std::string executable_directory();

// Milliseconds of the wall clock, the reading elapsed times are measured from.
std::int64_t clock_milliseconds();

// Opens /dev/null on standard input, output or error where one is closed at start, so that no
// file the run opens (the database socket, a feed) takes its number: a closed standard input
// would otherwise hand the socket to the first prompt.
void reopen_closed_standard_streams();

// A vanished reader of the console (a closed pipe) must change neither the feeds nor the exit
// status, so writing to it fails quietly instead of ending the process.
void ignore_broken_pipes();

// The value of environment variable `name`, or nullopt when it is not set.
std::optional<std::string> environment_value(const char* name);

}  // namespace talmo
