#pragma once

#include <map>
#include <memory>
#include <string>
#include <variant>

#include "core/database.h"

namespace talmo {

// What one run knows for certain while its consistent snapshot lasts: the answers the server
// gave to its statements, and texts built from them. Inside the snapshot the same statement
// always gets the same answer, so each goes to the server once. Owned by the connection while a
// Transaction keeps the snapshot (Connection::snapshot()).
class Snapshot {
 public:
  explicit Snapshot(Connection& connection);

  // The answer to `statement` exactly as the server gives it inside the snapshot: the same
  // columns, rows and row order. A statement the server refused raises DatabaseError with the
  // server's message, again on every later call.
  std::shared_ptr<const ResultSet> answer(const std::string& statement);

  // A text a higher layer built inside the snapshot, with everything it printed meanwhile and
  // the statement the cursor held when it was done.
  struct BuiltText {
    std::string text;
    std::string console;
    std::string last_statement;
  };
  // The text remembered under `key`, or nullptr.
  const BuiltText* recall(const std::string& key) const;
  void remember(const std::string& key, BuiltText built);

 private:
  // A statement's answer, or the server's message when it refused it.
  using Answer = std::variant<std::shared_ptr<const ResultSet>, std::string>;

  Connection& connection_;
  std::map<std::string, Answer, std::less<>> answers_by_text_;
  std::map<std::string, BuiltText, std::less<>> built_texts_;
};

}  // namespace talmo
