// CSV quoting on any texts: a line of quoted fields reads back to the same fields. Input: the
// fields, one per line.
#include <algorithm>

#include "core/text_utils.h"
#include "tests/fuzz/fuzz_support.h"

namespace talmo::fuzzing {
namespace {

// Reads a line of comma-separated fields, each in double quotes with inner quotes doubled.
// Returns false when the line is not of that form.
bool read_csv_line(const std::string& line, std::vector<std::string>& fields) {
  fields.clear();
  std::size_t at = 0;
  while (true) {
    if (at >= line.size() || line[at] != '"')
      return false;
    std::string field;
    for (++at;; ++at) {
      if (at >= line.size())
        return false;
      if (line[at] == '"') {
        if (at + 1 < line.size() && line[at + 1] == '"') {
          field += '"';
          ++at;
        } else {
          break;
        }
      } else {
        field += line[at];
      }
    }
    fields.push_back(field);
    ++at;  // past the closing quote
    if (at == line.size())
      return true;
    if (line[at] != ',')
      return false;
    ++at;
  }
}

}  // namespace
}  // namespace talmo::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talmo;
  using namespace talmo::fuzzing;
  const std::string text = input_text(data, size);
  const std::size_t lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  const std::vector<std::string> fields = input_fields(data, size, lines + 1);

  std::string line;
  for (const std::string& field : fields) {
    const std::string quoted = ADDTEXTDELIMITER2(field);
    const auto quotes = std::count(field.begin(), field.end(), '"');
    FUZZ_CHECK(quoted.size() == field.size() + static_cast<std::size_t>(quotes) + 2);
    line += (line.empty() ? "" : ",") + quoted;
  }
  std::vector<std::string> read_back;
  FUZZ_CHECK(read_csv_line(line, read_back));
  FUZZ_CHECK(read_back == fields);

  FUZZ_CHECK(ADDTEXTDELIMITER(text) == "~" + text + "~");
  return 0;
}
