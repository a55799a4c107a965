#pragma once

#include <cstddef>
#include <vector>

#include "core/file_reader.h"

namespace talmo::feedcheck {

// The bytes of a file one at a time, read from it in large chunks: what the CSV readers walk.
class ByteInput {
 public:
  static constexpr int kEnd = -1;

  explicit ByteInput(FileReader& file) : file_(file), buffer_(kChunkSize) {}

  // The next byte (0 to 255), or kEnd after the last one. Raises FileReadError.
  int next() {
    if (at_ == size_ && !refill())
      return kEnd;
    return static_cast<unsigned char>(buffer_[at_++]);
  }

  // Skips the byte order mark some editors put at the start of a UTF-8 file. Call it first.
  void skip_byte_order_mark() {
    if (at_ == size_ && !refill())
      return;
    if (size_ - at_ >= 3 && buffer_[at_] == '\xEF' && buffer_[at_ + 1] == '\xBB' &&
        buffer_[at_ + 2] == '\xBF')
      at_ += 3;
  }

  // The byte next() would give, without taking it.
  int peek() {
    if (at_ == size_ && !refill())
      return kEnd;
    return static_cast<unsigned char>(buffer_[at_]);
  }

 private:
  static constexpr std::size_t kChunkSize = 1 << 16;

  bool refill() {
    size_ = file_.read(buffer_.data(), buffer_.size());
    at_ = 0;
    return size_ > 0;
  }

  FileReader& file_;
  std::vector<char> buffer_;
  std::size_t at_ = 0;
  std::size_t size_ = 0;
};

}  // namespace talmo::feedcheck
