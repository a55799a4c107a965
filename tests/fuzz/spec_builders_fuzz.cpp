// The eight specification builders on any stored column text. A builder may refuse a value only
// with the errors its contract names; what it writes keeps to the shape of its line.
#include <algorithm>

#include "core/errors.h"
#include "core/strings.h"
#include "description/spec_builders.h"
#include "tests/fuzz/fuzz_support.h"

namespace talmo::fuzzing {
namespace {

enum class Refusal { kNone, kListIndex, kConversion };

struct Outcome {
  std::string text;
  Refusal refusal = Refusal::kNone;
};

// What the builder gives for `input`: its text, or "" with the kind of error it raised.
Outcome run(std::string (*builder)(const std::string&), const std::string& input) {
  try {
    return {builder(input)};
  } catch (const ListIndexError&) {
    return {"", Refusal::kListIndex};
  } catch (const ConversionError&) {
    return {"", Refusal::kConversion};
  }
}

std::size_t count_of(const std::string& text, char c) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), c));
}

// The stored sub-value at `index` of a "|"-separated text, or "" past the end.
std::string sub_value(const std::string& text, std::size_t index) {
  std::size_t start = 0;
  for (std::size_t i = 0; i < index; ++i) {
    start = text.find('|', start);
    if (start == std::string::npos)
      return "";
    ++start;
  }
  return text.substr(start, text.find('|', start) - start);
}

// The battery line worked out by hand: bars become "+", and the last sub-value loses the blanks
// it starts with.
std::string expected_battery(const std::string& trimmed) {
  std::string result = trimmed;
  std::replace(result.begin(), result.end(), '|', '+');
  const std::size_t last = trimmed.rfind('|');
  if (last != std::string::npos) {
    std::size_t end = last + 1;
    while (end < result.size() && static_cast<unsigned char>(result[end]) <= 0x20)
      ++end;
    result.erase(last + 1, end - last - 1);
  }
  return result;
}

void check_builders(const std::string& input) {
  const std::string trimmed = trim(input);
  if (trimmed.empty()) {
    for (const auto builder : {BUILD, BUILD_NUMBERED, BUILD_AKKUMULATOR, BUILD_GCARD,
                               BUILD_MEREVLEMEZ, BUILD_MEMORY, BUILD_KIJELZO, BUILD_PROCESSZOR}) {
      const Outcome blank = run(builder, input);
      FUZZ_CHECK(blank.text.empty() && blank.refusal == Refusal::kNone);
    }
    return;
  }

  // Builders over several entries: at least one " + " between two entries, no delimiter left.
  const auto entries = count_of(trimmed, '^') + 1;
  for (const auto builder : {BUILD_NUMBERED, BUILD_GCARD, BUILD_MEREVLEMEZ}) {
    const Outcome list = run(builder, input);
    if (list.refusal == Refusal::kNone) {
      FUZZ_CHECK(list.text.size() >= 3 * (entries - 1));
      FUZZ_CHECK(!holds(list.text, "|") && !holds(list.text, "^"));
    }
  }

  // A yes/no item is its stored text, or "Van" with an optional count in front.
  const Outcome yes_no = run(BUILD, input);
  if (yes_no.refusal == Refusal::kNone && !yes_no.text.empty()) {
    const std::string stored_text = sub_value(trimmed, 1);
    if (stored_text.empty()) {
      FUZZ_CHECK(yes_no.text.size() >= 3 && yes_no.text.substr(yes_no.text.size() - 3) == "Van");
    } else {
      FUZZ_CHECK(yes_no.text == stored_text || yes_no.text == trim(stored_text));
    }
  }

  const Outcome battery = run(BUILD_AKKUMULATOR, input);
  FUZZ_CHECK(battery.refusal == Refusal::kNone && battery.text == expected_battery(trimmed));

  const Outcome memory = run(BUILD_MEMORY, input);
  FUZZ_CHECK(memory.refusal == Refusal::kNone && !holds(memory.text, "|"));
  const auto bars = count_of(trimmed, '|');
  if (bars == 0)
    FUZZ_CHECK(memory.text == trimmed);

  const Outcome display = run(BUILD_KIJELZO, input);
  FUZZ_CHECK(display.refusal == (bars < 6 ? Refusal::kListIndex : Refusal::kNone));
  FUZZ_CHECK(!holds(display.text, "|"));

  const Outcome processor = run(BUILD_PROCESSZOR, input);
  FUZZ_CHECK(processor.refusal == Refusal::kNone && !holds(processor.text, "|"));
  // Clock, turbo, cores or cache open a bracket that is closed at the end; without them the
  // line is maker and type, each followed by a blank.
  bool details = false;
  for (std::size_t i = 2; i <= 5; ++i)
    details = details || !sub_value(trimmed, i).empty();
  const std::string& line = processor.text;
  FUZZ_CHECK(details ? !line.empty() && line.back() == ')' : line.empty() || line.back() == ' ');
}

}  // namespace
}  // namespace talmo::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  talmo::fuzzing::check_builders(talmo::fuzzing::input_text(data, size));
  return 0;
}
