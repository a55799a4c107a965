#include "description/spec_builders.h"

#include <cstdint>
#include <optional>

#include "core/strings.h"
#include "core/text_utils.h"

namespace talmo {
namespace {

// "count x " when the stored count is above 1, else "".
std::string count_prefix(const std::string& count) {
  return to_integer(count) > 1 ? count + " x " : "";
}

// Builds the text of every "^"-separated entry and joins them with " + ". An empty entry
// text still gets its separator.
template <class EntryText>
std::string join_entries(const std::string& input, EntryText entry_text) {
  std::string result;
  const StringList entries = split_stored(input, ENTRYDELIMITER);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    StringList items = split_stored(entries[i], ITEMDELIMITER);
    if (i > 0)
      result += " + ";
    result += entry_text(items);
  }
  return result;
}

void append_if_set(std::string& text, const std::string& prefix, const std::string& value,
                   const std::string& suffix = "") {
  if (!value.empty())
    text += prefix + value + suffix;
}

}  // namespace

std::string BUILD(const std::string& INPUT) {
  const std::string input = trim(INPUT);
  if (input.empty())
    return "";
  const StringList items = split_stored(input, ITEMDELIMITER);
  if (to_integer(item_at(items, 0)) != 1)
    return "";
  std::string result = count_prefix(item_at(items, 2));
  const std::string& text = item_at(items, 1);
  if (!text.empty())
    return text;
  return result + "Van";
}

std::string BUILD_NUMBERED(const std::string& INPUT) {
  const std::string input = trim(INPUT);
  if (input.empty())
    return "";
  return join_entries(input, [](const StringList& items) {
    std::string text;
    if (to_integer(item_at(items, 0)) > 0 && to_integer(item_at(items, 1)) == 1) {
      text = count_prefix(item_at(items, 3));
      const std::string& name = item_at(items, 2);
      text += name.empty() ? "Van" : name;
    }
    return text;
  });
}

std::string BUILD_AKKUMULATOR(const std::string& INPUT) {
  const std::string input = trim(INPUT);
  if (input.empty())
    return "";
  const StringList items = split_stored(input, ITEMDELIMITER);
  std::string result = items[0];
  for (std::size_t i = 1; i < items.size(); ++i)
    result += "+" + items[i];
  return result;
}

std::string BUILD_GCARD(const std::string& INPUT) {
  const std::string input = trim(INPUT);
  if (input.empty())
    return "";
  return join_entries(input, [](StringList& items) {
    std::string text;
    std::string& presence = items[0];
    if (presence.empty())
      presence = "0";
    if (to_integer(presence) > 0) {
      const std::string& count = item_at(items, 6);
      text = count_prefix(count.empty() ? "0" : count);
      text += item_at(items, 1);
      for (std::size_t i = 2; i <= 5; ++i)
        append_if_set(text, " ", item_at(items, i));
    }
    return text;
  });
}

std::string BUILD_MEREVLEMEZ(const std::string& INPUT) {
  const std::string input = trim(INPUT);
  if (input.empty())
    return "";
  return join_entries(input, [](const StringList& items) {
    std::string text;
    const std::string& presence = items[0];
    if (!presence.empty() && to_integer(presence) > 0) {
      text = count_prefix(item_at(items, 4));
      text += item_at(items, 1);
      append_if_set(text, " ", item_at(items, 2));
      append_if_set(text, " ", item_at(items, 3));
    }
    return text;
  });
}

std::string BUILD_MEMORY(const std::string& INPUT) {
  const std::string input = trim(INPUT);
  if (input.empty())
    return "";
  const StringList items = split_stored(input, ITEMDELIMITER);
  std::string result = items[0];
  append_if_set(result, " ", item_or_empty(items, 1));
  append_if_set(result, " ", item_or_empty(items, 2));
  return result;
}

std::string BUILD_KIJELZO(const std::string& INPUT) {
  const std::string input = trim(INPUT);
  if (input.empty())
    return "";
  const StringList items = split_stored(input, ITEMDELIMITER);
  std::string result = item_at(items, 0);
  append_if_set(result, " ", item_at(items, 1));
  append_if_set(result, " (", item_at(items, 2), ")");
  if (item_at(items, 3) == "1")
    result += " LED";
  if (item_at(items, 4) == "1")
    result += " matt";
  if (item_at(items, 5) == "1")
    result += " Touch";
  append_if_set(result, " ", item_at(items, 6));
  return result;
}

std::string BUILD_PROCESSZOR(const std::string& INPUT) {
  const std::string input = trim(INPUT);
  if (input.empty())
    return "";
  const StringList items = split_stored(input, ITEMDELIMITER);
  const std::string clock = item_or_empty(items, 2);
  const std::string turbo = item_or_empty(items, 3);
  const std::string cores = item_or_empty(items, 4);
  const std::string cache = item_or_empty(items, 5);
  std::string result;
  append_if_set(result, "", items[0], " ");
  append_if_set(result, "", item_or_empty(items, 1), " ");
  if (clock.empty() && turbo.empty() && cores.empty() && cache.empty())
    return result;
  result += "(";
  if (!clock.empty()) {
    // A core count that is not a number only loses the multiplier; the clock still shows.
    const std::optional<std::int32_t> core_count = parse_integer(cores);
    const std::string multiplier = core_count && *core_count >= 2 ? cores + " x " : "";
    result += multiplier + clock;
  }
  append_if_set(result, " / ", turbo, " Turbo");
  append_if_set(result, ", ", cache, " Cache");
  // The opening bracket above is always there, so the line is always closed.
  return result + ")";
}

}  // namespace talmo
