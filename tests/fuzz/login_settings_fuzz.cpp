// config.dat's text, whatever the file holds: five values, one per line, read back as written.
#include <algorithm>

#include "app/login_settings.h"
#include "tests/fuzz/fuzz_support.h"

namespace talmo::fuzzing {
namespace {

std::vector<std::string> fields_of(const LOGININFO& login) {
  return {login.IP, login.PORT, login.USERNAME, login.PASSWORD, login.DATABASE};
}

// The text a run writes for these values: each followed by a line end.
std::string written(const std::vector<std::string>& values) {
  std::string text;
  for (const std::string& value : values)
    text += value + "\n";
  return text;
}

}  // namespace
}  // namespace talmo::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talmo;
  using namespace talmo::fuzzing;
  const std::string content = input_text(data, size);
  const std::vector<std::string> values = fields_of(parse_login_settings(content));

  // The first value is the first line, without its line end.
  std::string first = content.substr(0, content.find('\n'));
  if (!first.empty() && first.back() == '\r')
    first.pop_back();
  FUZZ_CHECK(values[0] == first);
  for (const std::string& value : values)
    FUZZ_CHECK(!holds(value, "\n"));

  // Written back and read again, the values stay, unless one ends in a carriage return (which
  // the next reading takes for part of a Windows line end).
  if (std::none_of(values.begin(), values.end(),
                   [](const std::string& v) { return !v.empty() && v.back() == '\r'; })) {
    FUZZ_CHECK(fields_of(parse_login_settings(written(values))) == values);
  }
  // Lines after the fifth change nothing.
  if (std::count(content.begin(), content.end(), '\n') >= 5)
    FUZZ_CHECK(fields_of(parse_login_settings(content + "more\n")) == values);
  return 0;
}
