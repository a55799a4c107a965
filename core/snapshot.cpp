#include "core/snapshot.h"

#include "core/errors.h"

namespace talmo {

Snapshot::Snapshot(Connection& connection) : connection_(connection) {}

std::shared_ptr<const ResultSet> Snapshot::answer(const std::string& statement) {
  auto known = answers_by_text_.find(statement);
  if (known == answers_by_text_.end()) {
    Answer answer;
    try {
      answer = std::make_shared<const ResultSet>(connection_.select(statement));
    } catch (const DatabaseError& error) {
      answer = std::string(error.what());
    }
    known = answers_by_text_.emplace(statement, std::move(answer)).first;
  }
  if (const std::string* refusal = std::get_if<std::string>(&known->second))
    throw DatabaseError(*refusal);
  return std::get<std::shared_ptr<const ResultSet>>(known->second);
}

const Snapshot::BuiltText* Snapshot::recall(const std::string& key) const {
  const auto known = built_texts_.find(key);
  return known == built_texts_.end() ? nullptr : &known->second;
}

void Snapshot::remember(const std::string& key, BuiltText built) {
  built_texts_.insert_or_assign(key, std::move(built));
}

}  // namespace talmo
