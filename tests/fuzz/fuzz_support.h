#pragma once

// Shared pieces of the fuzz targets: the property check and the reading of one input as texts.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

// Stops the run with the failed property when CONDITION does not hold; libFuzzer then keeps the
// input as a crash.
#define FUZZ_CHECK(CONDITION)                                                                \
  do {                                                                                       \
    if (!(CONDITION)) {                                                                      \
      std::fprintf(stderr, "property failed: %s (%s:%d)\n", #CONDITION, __FILE__, __LINE__); \
      std::abort();                                                                          \
    }                                                                                        \
  } while (false)

namespace talmo::fuzzing {

// The whole input as one text.
inline std::string input_text(const std::uint8_t* data, std::size_t size) {
  return std::string(reinterpret_cast<const char*>(data), size);
}

// The input as `count` texts separated by "\n"; the last takes the rest, missing ones are empty.
// Seed files are then readable: one value per line.
inline std::vector<std::string> input_fields(const std::uint8_t* data, std::size_t size,
                                             std::size_t count) {
  const std::string text = input_text(data, size);
  std::vector<std::string> fields;
  std::size_t start = 0;
  while (fields.size() + 1 < count) {
    const std::size_t end = text.find('\n', start);
    if (end == std::string::npos)
      break;
    fields.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  fields.push_back(start <= text.size() ? text.substr(start) : std::string());
  fields.resize(count);
  return fields;
}

// Whether TEXT holds PART, found byte by byte.
inline bool holds(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

}  // namespace talmo::fuzzing
