#include "core/replacements.h"

#include <algorithm>

#include "core/strings.h"

namespace talmo {
namespace {

// Whether one text is a prefix of the other: they agree wherever both have a byte.
bool prefix_related(std::string_view a, std::string_view b) {
  const std::size_t n = std::min(a.size(), b.size());
  return a.substr(0, n) == b.substr(0, n);
}

}  // namespace

Replacements::Replacements(std::vector<Pair> pairs, bool ignore_case)
    : pairs_(std::move(pairs)), ignore_case_(ignore_case) {
  patterns_.reserve(pairs_.size());
  for (const Pair& pair : pairs_) {
    patterns_.push_back(ignore_case_ ? lower_ascii(pair.first) : pair.first);
    folded_replacements_.push_back(ignore_case_ ? lower_ascii(pair.second) : pair.second);
  }
  searchers_.reserve(patterns_.size());
  for (const std::string& pattern : patterns_)
    searchers_.emplace_back(pattern.begin(), pattern.end());
  scans_once_ = independent();
  if (scans_once_) {
    for (std::size_t i = 0; i < patterns_.size(); ++i)
      starting_with_[static_cast<unsigned char>(patterns_[i].front())].push_back(i);
    const char first = patterns_.front().front();
    if (std::all_of(patterns_.begin(), patterns_.end(),
                    [&](const std::string& pattern) { return pattern.front() == first; }))
      only_start_ = &patterns_.front().front();
  }
}

// One scan gives the passes' result when (all compared as the passes compare):
// - no pattern is empty, and no two are prefixes of one another, so at most one occurrence of
//   any of them starts at a given place;
// - no pattern meets itself or another inside itself (no occurrences overlap), so no pass takes
//   away what a later one would have found;
// - no replacement, nor the seam between one and the text before it, holds the start of a later
//   pattern, so no pass makes an occurrence a later one finds. (A replacement's seam with the
//   text after it could only complete an occurrence that starts inside the replacement.)
bool Replacements::independent() const {
  for (std::size_t i = 0; i < patterns_.size(); ++i) {
    const std::string& pattern = patterns_[i];
    if (pattern.empty())
      return false;
    for (std::size_t j = 0; j < patterns_.size(); ++j) {
      const std::string_view other = patterns_[j];
      if (i != j && prefix_related(pattern, other))
        return false;
      for (std::size_t k = 1; k < pattern.size(); ++k) {
        if (prefix_related(std::string_view(pattern).substr(k), other))
          return false;
      }
      if (j <= i)
        continue;
      const std::string_view put_in = folded_replacements_[i];
      if (put_in.empty())
        return false;  // a removal joins the texts on its two sides
      for (std::size_t k = 0; k < put_in.size(); ++k) {
        if (prefix_related(put_in.substr(k), other))
          return false;
      }
      for (std::size_t k = 1; k < other.size(); ++k) {
        if (prefix_related(other.substr(k), put_in))
          return false;
      }
    }
  }
  return true;
}

std::string Replacements::apply(std::string_view text) const {
  return scans_once_ ? apply_in_one_scan(text) : apply_in_turn(text);
}

std::string Replacements::apply_in_one_scan(std::string_view text) const {
  // Occurrences are found in a copy with ASCII letters folded when case is ignored: the same
  // length, so every position found in it is the same position in the text.
  const std::string folded_copy = ignore_case_ ? lower_ascii(text) : std::string();
  const std::string_view haystack = ignore_case_ ? std::string_view(folded_copy) : text;
  std::string result;
  result.reserve(text.size());
  std::size_t copied = 0;  // text before this is in the result already
  std::size_t at = 0;
  while (at < haystack.size()) {
    if (only_start_ != nullptr) {
      // Every pattern starts with the same byte: jump to its next appearance.
      at = haystack.find(*only_start_, at);
      if (at == std::string_view::npos)
        break;
    }
    std::size_t found = patterns_.size();
    for (const std::size_t i : starting_with_[static_cast<unsigned char>(haystack[at])]) {
      if (haystack.compare(at, patterns_[i].size(), patterns_[i]) == 0) {
        found = i;
        break;
      }
    }
    if (found == patterns_.size()) {
      ++at;
      continue;
    }
    result.append(text, copied, at - copied).append(pairs_[found].second);
    at += patterns_[found].size();
    copied = at;
  }
  result.append(text, copied);
  return result;
}

std::string Replacements::apply_in_turn(std::string_view text) const {
  std::string result(text);
  // When case is ignored, occurrences are found in a copy with ASCII letters folded, kept in step
  // with the result (same length, same positions) through every pass.
  std::string folded_text = ignore_case_ ? lower_ascii(text) : std::string();
  for (std::size_t i = 0; i < pairs_.size(); ++i) {
    const std::string& pattern = patterns_[i];
    if (pattern.empty())
      continue;
    const std::string& haystack = ignore_case_ ? folded_text : result;
    auto hit = std::search(haystack.begin(), haystack.end(), searchers_[i]);
    if (hit == haystack.end())
      continue;
    std::string next_result;
    std::string next_folded;
    next_result.reserve(result.size());
    if (ignore_case_)
      next_folded.reserve(folded_text.size());
    std::size_t pos = 0;
    while (hit != haystack.end()) {
      const std::size_t at = static_cast<std::size_t>(hit - haystack.begin());
      next_result.append(result, pos, at - pos).append(pairs_[i].second);
      if (ignore_case_)
        next_folded.append(folded_text, pos, at - pos).append(folded_replacements_[i]);
      pos = at + pattern.size();
      hit = std::search(haystack.begin() + static_cast<std::ptrdiff_t>(pos), haystack.end(),
                        searchers_[i]);
    }
    next_result.append(result, pos);
    if (ignore_case_)
      next_folded.append(folded_text, pos);
    result = std::move(next_result);
    folded_text = std::move(next_folded);
  }
  return result;
}

std::string collapse_blanks(std::string_view text) {
  std::string result(text.size(), '\0');
  std::size_t length = 0;
  bool after_blank = false;
  for (const char c : text) {
    if (c == ' ' && after_blank)
      continue;
    after_blank = c == ' ';
    result[length++] = c;
  }
  result.resize(length);
  return result;
}

}  // namespace talmo
