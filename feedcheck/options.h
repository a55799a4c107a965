#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/strings.h"
#include "feedcheck/feed_kinds.h"

namespace talmo::feedcheck {

// What the command line asks of a run.
struct Options {
  std::string export_dir;                   // ends with "/"
  std::vector<const FeedKind*> feeds;       // in the export's order
  std::optional<std::string> previous_dir;  // ends with "/"
  double price_change = 30;                 // percent
  std::optional<std::string> publish_dir;   // ends with "/"
  bool accept_shrink = false;
  bool all = false;
  bool json = false;
};

enum class Action { Check, Help, Version, UsageError };

struct Command {
  Action action = Action::Check;
  Options options;
  std::string error;  // the one line a usage error prints
};

// Reads the arguments (without the program name). Options take their value as the next
// argument or after "="; EXPORT_DIR defaults to `default_export_dir`. Does not look at the disk.
Command parse_command(const StringList& arguments, const std::string& default_export_dir);

// The text --help prints.
std::string usage_text();

}  // namespace talmo::feedcheck
