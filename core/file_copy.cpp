#include "core/file_copy.h"

#include <string_view>
#include <vector>

#include "core/file_output.h"

namespace talmo {
namespace {

constexpr std::size_t kChunkSize = 1 << 16;

}  // namespace

void replace_with_copy(FileReader& source, const std::string& destination) {
  ReplacingFile copy(destination);
  source.rewind();
  std::vector<char> buffer(kChunkSize);
  for (std::size_t got; (got = source.read(buffer.data(), buffer.size())) > 0;)
    copy.write_bytes(std::string_view(buffer.data(), got));
  copy.commit();
}

}  // namespace talmo
