#include "app/login_settings.h"

#include <optional>

#include "core/file_input.h"
#include "core/file_output.h"
#include "core/strings.h"
#include "site_config.h"

namespace talmo {
namespace {

constexpr const char* kSettingsFile = "config.dat";

// Lines ending in "\n" or "\r\n"; a last line without a line end still counts.
StringList split_lines(const std::string& content) {
  StringList lines;
  std::size_t start = 0;
  while (start < content.size()) {
    std::size_t end = content.find('\n', start);
    if (end == std::string::npos)
      end = content.size();
    std::string line = content.substr(start, end - start);
    if (!line.empty() && line.back() == '\r')
      line.pop_back();
    lines.push_back(line);
    start = end + 1;
  }
  return lines;
}

}  // namespace

LOGININFO default_login() {
  return LOGININFO{site_config::kDefaultDatabaseHost, "3306", "exprtr", "T7d3wq415M", "uj_db"};
}

LOGININFO parse_login_settings(const std::string& CONTENT) {
  const StringList lines = split_lines(CONTENT);
  return LOGININFO{item_or_empty(lines, 0), item_or_empty(lines, 1), item_or_empty(lines, 2),
                   item_or_empty(lines, 3), item_or_empty(lines, 4)};
}

bool GETLOGININFO(const std::string& PATH, LOGININFO& LOGIN) {
  const std::optional<std::string> content = read_whole_file(PATH + kSettingsFile);
  if (!content)
    return false;
  LOGIN = parse_login_settings(*content);
  return true;
}

void SETLOGININFO(const std::string& PATH, const LOGININFO& LOGIN) {
  save_lines_with_mode(PATH + kSettingsFile,
                       {LOGIN.IP, LOGIN.PORT, LOGIN.USERNAME, LOGIN.PASSWORD, LOGIN.DATABASE},
                       0600);
}

}  // namespace talmo
