#include "feedcheck/xml_error_place.h"

#include <algorithm>
#include <string_view>

#include "feedcheck/byte_input.h"

namespace talmo::feedcheck {
namespace {

enum class Skipping { Nothing, Cdata, Comment };

// A long line is read in pieces; this much of a piece's end waits for the next one, so that no
// tag or end marker is cut in two.
constexpr std::size_t kPiece = 1 << 16;
constexpr std::size_t kCarry = 256;

// Whether `name` is the tag name at `at` in `text`, as a whole name.
bool tag_at(std::string_view text, std::size_t at, std::string_view name) {
  if (text.substr(at, name.size()) != name)
    return false;
  const std::size_t after = at + name.size();
  return after == text.size() ||
         std::string_view(">/ \t\r\n").find(text[after]) != std::string_view::npos;
}

class ItemCounter {
 public:
  ItemCounter(const std::string& item, const std::string& key)
      : open_(item), close_("/" + item), key_(key), key_close_("</" + key + ">") {}

  // Counts the tags in `text` and returns how much of it was used up. Unless `whole`, a tag or
  // end marker that may run on past the text's end is left for the next piece.
  std::size_t scan(std::string_view text, bool whole) {
    const std::size_t limit = whole ? text.size() : text.size() - std::min(text.size(), kCarry);
    std::size_t at = 0;
    while (at < text.size()) {
      if (skipping_ != Skipping::Nothing) {
        const std::string_view end = skipping_ == Skipping::Cdata ? "]]>" : "-->";
        const std::size_t found = text.find(end, at);
        if (found == std::string_view::npos)
          return whole ? text.size() : std::max(at, limit);
        skipping_ = Skipping::Nothing;
        at = found + end.size();
        continue;
      }
      const std::size_t lt = text.find('<', at);
      if (lt == std::string_view::npos)
        return text.size();
      if (lt >= limit)
        return lt;
      at = lt + 1;
      if (text.substr(lt, 9) == "<![CDATA[") {
        skipping_ = Skipping::Cdata;
        at = lt + 9;
      } else if (text.substr(lt, 4) == "<!--") {
        skipping_ = Skipping::Comment;
        at = lt + 4;
      } else if (tag_at(text, at, open_)) {
        ++place_.number;
        place_.previous_key = std::move(place_.key);
        place_.key.clear();
        const std::size_t after = at + open_.size();
        place_.inside = after >= text.size() || text[after] != '/';
      } else if (tag_at(text, at, close_)) {
        place_.inside = false;
      } else if (place_.inside && tag_at(text, at, key_)) {
        at = read_key(text, at + key_.size());
      }
    }
    return text.size();
  }

  ItemPlace place() const { return place_; }

 private:
  // Takes the key's text when its closing tag is on the same piece; returns where to go on.
  std::size_t read_key(std::string_view text, std::size_t at) {
    const std::size_t start = text.find('>', at);
    const std::size_t end = start == std::string_view::npos ? start : text.find(key_close_, start);
    if (end == std::string_view::npos)
      return at;
    std::string_view key = text.substr(start + 1, end - start - 1);
    if (key.substr(0, 9) == "<![CDATA[" && key.size() >= 12 && key.substr(key.size() - 3) == "]]>")
      key = key.substr(9, key.size() - 12);
    place_.key = std::string(key);
    return end + key_close_.size();
  }

  std::string open_;
  std::string close_;
  std::string key_;
  std::string key_close_;
  Skipping skipping_ = Skipping::Nothing;
  ItemPlace place_;
};

}  // namespace

ItemPlace locate_item(FileReader& file, const std::string& item, const std::string& key,
                      std::size_t line, std::size_t column) {
  file.rewind();
  ByteInput input(file);
  ItemCounter counter(item, key);
  std::string text;
  std::size_t number = 1;
  std::size_t column_at = 1;  // the column of text's first byte
  for (;;) {
    const int c = input.next();
    const bool line_end = c == '\n' || c == ByteInput::kEnd;
    if (!line_end)
      text += static_cast<char>(c);
    const bool at_error = number == line && column_at + text.size() >= column;
    if (line_end || at_error || text.size() >= kPiece) {
      const std::size_t used = counter.scan(text, line_end || at_error);
      text.erase(0, used);
      column_at += used;
    }
    if (at_error || c == ByteInput::kEnd)
      break;
    if (c == '\n') {
      if (number == line)
        break;
      ++number;
      column_at = 1;
      text.clear();
    }
  }
  return counter.place();
}

}  // namespace talmo::feedcheck
