#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace talmo {

// A list of (from, to) replacements applied in turn to long texts, prepared once for many texts:
// apply() gives exactly what replace_all (or replace_all_ci) of each pair in list order gives.
//
// When no replacement can make or break an occurrence of a later `from` (checked once, when the
// list is prepared), the passes give what one left-to-right scan gives, and one scan it is;
// otherwise each pass searches with a skip table.
class Replacements {
 public:
  using Pair = std::pair<std::string, std::string>;
  // `ignore_case`: ASCII letters of `from` match in either case, as in replace_all_ci.
  Replacements(std::vector<Pair> pairs, bool ignore_case);
  Replacements(const Replacements&) = delete;
  Replacements& operator=(const Replacements&) = delete;

  std::string apply(std::string_view text) const;
  // Whether apply() scans once (for tests of the check).
  bool scans_once() const { return scans_once_; }

 private:
  using Searcher = std::boyer_moore_horspool_searcher<std::string::const_iterator>;

  bool independent() const;
  std::string apply_in_turn(std::string_view text) const;
  std::string apply_in_one_scan(std::string_view text) const;

  std::vector<Pair> pairs_;
  bool ignore_case_;
  // The texts searched for and put in, folded when case is ignored, and the searchers, which
  // point into `patterns_`; none of these vectors changes after construction.
  std::vector<std::string> patterns_;
  std::vector<std::string> folded_replacements_;
  std::vector<Searcher> searchers_;
  bool scans_once_ = false;
  // For the one scan: the patterns (by index) that start with each byte of the searched text,
  // and that byte when all start with the same one.
  std::array<std::vector<std::size_t>, 256> starting_with_;
  const char* only_start_ = nullptr;
};

// `text` with every run of two or more blanks made one blank: what replacing "  " by " " until
// none is left gives.
std::string collapse_blanks(std::string_view text);

}  // namespace talmo
