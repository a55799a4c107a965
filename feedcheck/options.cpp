#include "feedcheck/options.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <map>

namespace talmo::feedcheck {
namespace {

const std::string kProgram = "talmo_feedcheck";

std::string as_directory(std::string path) {
  if (path.empty() || path.back() != '/')
    path += '/';
  return path;
}

struct UsageError {
  std::string message;
};

std::vector<const FeedKind*> parse_feeds(const std::string& list) {
  std::vector<bool> chosen(all_feed_kinds().size(), false);
  std::size_t start = 0;
  for (;;) {
    const std::size_t comma = list.find(',', start);
    const std::string name = trim(list.substr(start, comma - start));
    const FeedKind* kind = find_feed_kind(name);
    if (!kind) {
      throw UsageError{"unknown feed \"" + name +
                       "\" in --feeds (talmo, arukereso, grando, vatera, heureka)"};
    }
    chosen[static_cast<std::size_t>(kind - all_feed_kinds().data())] = true;
    if (comma == std::string::npos)
      break;
    start = comma + 1;
  }
  std::vector<const FeedKind*> feeds;
  for (std::size_t i = 0; i < chosen.size(); ++i) {
    if (chosen[i])
      feeds.push_back(&all_feed_kinds()[i]);
  }
  return feeds;
}

double parse_percent(const std::string& text) {
  char* end = nullptr;
  const double value = std::strtod(text.c_str(), &end);
  const bool digits_only =
      !text.empty() && text.find_first_not_of("0123456789.") == std::string::npos;
  if (!digits_only || end != text.c_str() + text.size())
    throw UsageError{"--price-change takes a percentage such as 30, not \"" + text + "\""};
  return value;
}

Options parse_options(const StringList& arguments, const std::string& default_export_dir,
                      Action& action) {
  Options options;
  options.export_dir = as_directory(default_export_dir);
  for (const FeedKind& kind : all_feed_kinds())
    options.feeds.push_back(&kind);
  const std::map<std::string, std::function<void(const std::string&)>> with_value = {
      {"feeds", [&](const std::string& v) { options.feeds = parse_feeds(v); }},
      {"previous", [&](const std::string& v) { options.previous_dir = as_directory(v); }},
      {"price-change", [&](const std::string& v) { options.price_change = parse_percent(v); }},
      {"publish", [&](const std::string& v) { options.publish_dir = as_directory(v); }},
  };
  const std::map<std::string, std::function<void()>> flags = {
      {"accept-shrink", [&] { options.accept_shrink = true; }},
      {"all", [&] { options.all = true; }},
      {"json", [&] { options.json = true; }},
      {"help", [&] { action = Action::Help; }},
      {"version", [&] { action = action == Action::Help ? action : Action::Version; }},
  };
  bool positional_given = false;
  bool options_ended = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (options_ended || argument.size() < 2 || argument[0] != '-') {
      if (positional_given)
        throw UsageError{"one export directory at most; \"" + argument + "\" is a second"};
      if (argument.empty())
        throw UsageError{"the export directory is an empty text"};
      options.export_dir = as_directory(argument);
      positional_given = true;
      continue;
    }
    if (argument == "--") {
      options_ended = true;
      continue;
    }
    const std::size_t equals = argument.find('=');
    const std::string name = argument.substr(0, equals);
    const std::string bare = name.rfind("--", 0) == 0 ? name.substr(2) : "";
    if (const auto flag = flags.find(bare); flag != flags.end() && equals == std::string::npos) {
      flag->second();
    } else if (const auto option = with_value.find(bare); option != with_value.end()) {
      std::string value;
      if (equals != std::string::npos)
        value = argument.substr(equals + 1);
      else if (i + 1 < arguments.size())
        value = arguments[++i];
      else
        throw UsageError{name + " needs a value"};
      if (value.empty())
        throw UsageError{name + " needs a value"};
      option->second(value);
    } else {
      throw UsageError{"unknown option \"" + argument + "\"; --help lists the options"};
    }
  }
  return options;
}

}  // namespace

Command parse_command(const StringList& arguments, const std::string& default_export_dir) {
  Command command;
  try {
    command.options = parse_options(arguments, default_export_dir, command.action);
  } catch (const UsageError& error) {
    command.action = Action::UsageError;
    command.error = kProgram + ": " + error.message;
  }
  return command;
}

std::string usage_text() {
  return "Usage: talmo_feedcheck [EXPORT_DIR] [--feeds LIST] [--previous DIR] "
         "[--price-change PERCENT]\n"
         "                       [--publish DIR] [--accept-shrink] [--all] [--json] [--help] "
         "[--version]\n"
         "\n"
         "Checks the feeds the export wrote and reports every problem a marketplace would meet.\n"
         "With --publish it copies each feed a marketplace can read into the directory the web\n"
         "server serves. It never changes a feed the export wrote.\n"
         "\n"
         "  EXPORT_DIR              the export directory with hu/ and sk/ (default: export/ "
         "beside\n"
         "                          the program)\n"
         "  --feeds LIST            the feeds the shop exports, separated by commas (default:\n"
         "                          talmo,arukereso,grando,vatera,heureka)\n"
         "  --previous DIR          compare with the feeds of the last good run, laid out like\n"
         "                          EXPORT_DIR\n"
         "  --price-change PERCENT  report prices that moved by more than PERCENT percent\n"
         "                          (default 30)\n"
         "  --publish DIR           copy every feed without a whole-file problem into DIR, laid "
         "out\n"
         "                          like EXPORT_DIR; its copies are the previous run unless\n"
         "                          --previous names another\n"
         "  --accept-shrink         publish a feed even with fewer than half the items of its\n"
         "                          published copy\n"
         "  --all                   list every problem, not the first 20 of each kind\n"
         "  --json                  write the report as one JSON document\n"
         "  --help                  show this text\n"
         "  --version               show the version\n"
         "\n"
         "Exit status: 0 no problems (warnings allowed), 1 item problems only (every feed\n"
         "publishable), 2 usage error or a feed missing or unreadable, 3 a feed held back or with\n"
         "a whole-file problem.\n";
}

}  // namespace talmo::feedcheck
