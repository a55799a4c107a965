#pragma once

#include <stdexcept>
#include <string>

namespace talmo {

// Base of every failure the tool raises itself. Lookup guards and the run's guard catch this
// type and nothing broader, so a programming error still ends the run loudly.
class TalmoError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The database refused a statement or the connection; the message is the client library's.
class DatabaseError : public TalmoError {
 public:
  using TalmoError::TalmoError;
};

// The connection to the database is gone (the server went away, shut down, killed the
// connection, or did not answer within the time-out). No later statement can succeed and the tool
// does not reconnect, so this passes every lookup guard and ends the run like a connection that
// cannot be opened: the export under way writes nothing.
class ConnectionLost : public DatabaseError {
 public:
  using DatabaseError::DatabaseError;
};

// A file could not be written. The message names the final file, never a temporary one.
class FileError : public TalmoError {
 public:
  explicit FileError(const std::string& full_path)
      : TalmoError("Unable to create file \"" + full_path + "\"") {}
};

// A text that had to be a number was not one.
class ConversionError : public TalmoError {
 public:
  using TalmoError::TalmoError;
};

// A position was read past the end of a split list (a stored value with too few sub-values).
class ListIndexError : public TalmoError {
 public:
  using TalmoError::TalmoError;
};

}  // namespace talmo
