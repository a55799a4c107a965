#include "feedcheck/problems.h"

namespace talmo::feedcheck {
namespace {

struct KindInfo {
  const char* id;
  const char* title;
  Severity severity;
};

// In the order of ProblemKind.
constexpr KindInfo kKinds[kProblemKindCount] = {
    {"not-well-formed", "XML not well-formed", Severity::File},
    {"not-splittable", "records cannot be split", Severity::File},
    {"wrong-header", "header line wrong", Severity::File},
    {"no-items", "no items", Severity::File},
    {"missing-value", "required value missing", Severity::Item},
    {"price-not-computed", "price could not be computed", Severity::Item},
    {"bad-price", "price not usable", Severity::Item},
    {"bad-address", "not a usable web address", Severity::Item},
    {"too-long", "value too long", Severity::Item},
    {"bad-item-id", "item id not accepted", Severity::Item},
    {"bad-category", "category path not accepted", Severity::Item},
    {"duplicate", "duplicate", Severity::Item},
    {"wrong-fields", "fields not where the format puts them", Severity::Item},
    {"empty-parameter", "parameter without a value", Severity::Warning},
};

const KindInfo& info(ProblemKind kind) {
  return kKinds[static_cast<std::size_t>(kind)];
}

}  // namespace

const char* kind_id(ProblemKind kind) {
  return info(kind).id;
}

const char* kind_title(ProblemKind kind) {
  return info(kind).title;
}

Severity kind_severity(ProblemKind kind) {
  return info(kind).severity;
}

bool stops_reading(const std::optional<FileProblem>& problem) {
  return problem && (problem->kind == ProblemKind::NotWellFormed ||
                     problem->kind == ProblemKind::NotSplittable);
}

}  // namespace talmo::feedcheck
