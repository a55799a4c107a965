#include <string>
#include <string_view>

#include "feedcheck/byte_input.h"
#include "feedcheck/item_readers.h"

namespace talmo::feedcheck {
namespace {

constexpr std::string_view kVateraRecordStart = "7937228;";

FileProblem split_problem(std::size_t line, const std::string& what) {
  return {ProblemKind::NotSplittable, "line " + std::to_string(line) + ": " + what};
}

// One record of a quoted CSV file being read.
class QuotedRecord {
 public:
  explicit QuotedRecord(std::size_t number) : number_(number) {}

  bool empty() const { return item_.fields.empty() && !started_; }
  std::size_t field_number() const { return item_.fields.size() + 1; }
  void start(std::size_t line) {
    if (!started_)
      item_.line = line;
    started_ = true;
  }
  void open_quote() { current_.quoted = true; }
  void add(char c) { current_.append(std::string_view(&c, 1)); }
  void end_field() {
    item_.fields.push_back(std::move(current_));
    current_ = Field{};
  }
  FeedItem& finish() {
    end_field();
    item_.number = number_;
    return item_;
  }

 private:
  std::size_t number_;
  FeedItem item_;
  Field current_;
  bool started_ = false;
};

enum class State { FieldStart, Unquoted, Quoted, AfterQuote };

// Takes a line end ("\n", or "\r\n") at the input's position if there is one.
bool take_line_end(int c, ByteInput& input) {
  if (c == '\n')
    return true;
  if (c == '\r' && input.peek() == '\n') {
    input.next();
    return true;
  }
  return false;
}

}  // namespace

std::optional<FileProblem> read_quoted_records(FileReader& file, const ItemHandler& on_record) {
  ByteInput input(file);
  input.skip_byte_order_mark();
  std::size_t line = 1;
  std::size_t quote_line = 0;
  std::size_t records = 0;
  QuotedRecord record(1);
  State state = State::FieldStart;
  const auto finish_record = [&] {
    on_record(record.finish());
    record = QuotedRecord(++records + 1);
    state = State::FieldStart;
  };
  for (;;) {
    const int c = input.next();
    if (c == ByteInput::kEnd) {
      if (state == State::Quoted) {
        return split_problem(quote_line, "the quote opening field " +
                                             std::to_string(record.field_number()) +
                                             " is never closed");
      }
      if (!record.empty())
        on_record(record.finish());
      return std::nullopt;
    }
    if (state != State::Quoted) {
      // Outside quotes a line end finishes the record and a comma the field, in every state.
      const bool line_end = take_line_end(c, input);
      if (state == State::FieldStart) {
        if (line_end && record.empty()) {
          ++line;
          continue;
        }
        record.start(line);
      }
      if (line_end) {
        finish_record();
        ++line;
        continue;
      }
      if (c == ',') {
        record.end_field();
        state = State::FieldStart;
        continue;
      }
    }
    switch (state) {
      case State::FieldStart:
        if (c == '"') {
          record.open_quote();
          quote_line = line;
          state = State::Quoted;
        } else {
          record.add(static_cast<char>(c));
          state = State::Unquoted;
        }
        break;
      case State::Unquoted:
        if (c == '"') {
          return split_problem(line, "a double quote inside field " +
                                         std::to_string(record.field_number()) +
                                         ", which does not start with one");
        }
        record.add(static_cast<char>(c));
        break;
      case State::Quoted:
        if (c == '"') {
          state = State::AfterQuote;
        } else {
          if (c == '\n')
            ++line;
          record.add(static_cast<char>(c));
        }
        break;
      case State::AfterQuote:
        if (c != '"') {
          return split_problem(line, "text after the closing quote of field " +
                                         std::to_string(record.field_number()));
        }
        record.add('"');
        state = State::Quoted;
        break;
    }
  }
}

std::optional<FileProblem> read_vatera_records(FileReader& file, const ItemHandler& on_record) {
  ByteInput input(file);
  input.skip_byte_order_mark();
  std::size_t line_number = 0;
  std::size_t records = 0;
  FeedItem record;
  bool open = false;
  std::string line;
  for (;;) {
    line.clear();
    int c = input.next();
    if (c == ByteInput::kEnd)
      break;
    ++line_number;
    while (c != ByteInput::kEnd && c != '\n') {
      if (line.size() < kValueLimit)
        line += static_cast<char>(c);
      c = input.next();
    }
    if (std::string_view(line).substr(0, kVateraRecordStart.size()) == kVateraRecordStart) {
      if (open)
        on_record(record);
      record = FeedItem{};
      record.number = ++records;
      record.line = line_number;
      record.fields.emplace_back();
      record.fields.front().append(line);
      open = true;
    } else if (open) {
      record.fields.front().append("\n");
      record.fields.front().append(line);
    } else {
      return split_problem(line_number, "starts no record (\"7937228;\") and follows none");
    }
  }
  if (open)
    on_record(record);
  return std::nullopt;
}

}  // namespace talmo::feedcheck
