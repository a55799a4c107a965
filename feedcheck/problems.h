#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace talmo::feedcheck {

// What a problem costs the shop: the whole file, one item, or nothing yet.
enum class Severity { File, Item, Warning };

// Every kind of problem the checker reports, in the order the report lists them.
enum class ProblemKind {
  NotWellFormed,
  NotSplittable,
  WrongHeader,
  NoItems,
  MissingValue,
  PriceNotComputed,
  BadPrice,
  BadAddress,
  TooLong,
  BadItemId,
  BadCategory,
  DuplicateKey,
  WrongFields,
  EmptyParameter,
};

inline constexpr std::size_t kProblemKindCount = 14;

// The kind's name in the JSON report ("price-not-computed").
const char* kind_id(ProblemKind kind);
// The kind's heading in the text report ("price could not be computed").
const char* kind_title(ProblemKind kind);
Severity kind_severity(ProblemKind kind);

// One problem of one item: `field` names where it is, `what` says what is wrong, `text` is the
// offending value as the feed holds it, when there is one.
struct Finding {
  ProblemKind kind;
  std::string field;
  std::string what;
  std::optional<std::string> text;
};

// A finding with the feed and item it belongs to. `line` is where the item starts in the file.
struct Problem {
  std::string feed;
  std::string key;
  std::size_t line = 0;
  Finding finding;
};

// A problem of a whole file: the marketplace cannot read it, or finds nothing in it.
struct FileProblem {
  ProblemKind kind;
  std::string message;
};

// Whether the file's problem stopped its reading, so that its items were not all counted.
bool stops_reading(const std::optional<FileProblem>& problem);

}  // namespace talmo::feedcheck
