#include "app/options.h"

#include <algorithm>

namespace talmo {
namespace {

bool is_option(const std::string& argument) {
  return argument.size() > 1 && argument[0] == '-';
}
bool is_long(const std::string& argument) {
  return argument.size() > 1 && argument[1] == '-';
}

// For "--name" and "--name=value": the text after the dashes up to "=" or the end.
std::string long_name(const std::string& argument) {
  const std::string rest = argument.substr(2);
  return rest.substr(0, rest.find('='));
}

std::string invalid_option(std::size_t position, const std::string& name) {
  return "Invalid option at position " + std::to_string(position) + ": \"" + name + "\"";
}

}  // namespace

std::string check_options(const StringList& arguments, const std::string& short_options,
                          const StringList& long_options) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (!is_option(argument))
      continue;
    if (is_long(argument)) {
      const std::string name = long_name(argument);
      if (std::find(long_options.begin(), long_options.end(), name) == long_options.end()) {
        return invalid_option(i + 1, name);
      }
      continue;
    }
    for (char letter : argument.substr(1)) {
      if (short_options.find(letter) == std::string::npos) {
        return invalid_option(i + 1, std::string(1, letter));
      }
    }
  }
  return "";
}

bool has_option(const StringList& arguments, char short_option, const std::string& long_option) {
  return std::any_of(arguments.begin(), arguments.end(), [&](const std::string& argument) {
    if (!is_option(argument))
      return false;
    if (is_long(argument))
      return long_name(argument) == long_option;
    return argument.find(short_option, 1) != std::string::npos;
  });
}

}  // namespace talmo
