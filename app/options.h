#pragma once

#include <string>

#include "core/strings.h"

namespace talmo {

// The console frame's option check. Every argument that starts with "-" (other than a lone "-")
// is an option; the first one outside the given short letters and long names gives
// `Invalid option at position N: "NAME"` (N counts arguments from 1). "" when all pass.
std::string check_options(const StringList& arguments, const std::string& short_options,
                          const StringList& long_options);

// Whether the short letter or the long name is among the arguments.
bool has_option(const StringList& arguments, char short_option, const std::string& long_option);

}  // namespace talmo
