// Reads a text file the way the product's 1,024-byte line buffer does, for the basket and the
// bulk bid readers.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

class BidLineReader {
 public:
  // A piece holds at most this many bytes, its line feed included.
  static constexpr size_t kPieceLimit = 1023;

  explicit BidLineReader(std::FILE* file) : file_(file), buffer_(1 << 16) {}

  // The next piece: a line with its line feed, or the next 1,023 bytes of a longer line, each
  // then handled as a line of its own. The text stops at a NUL byte, as C text would.
  // False at the end of the file or on a read error.
  bool next(std::string_view& text);
  // The line the last piece belongs to as an editor numbers it (the first is 1); the pieces of
  // a long line share it.
  int lineNumber() const { return line_; }
  bool failed() const { return failed_; }

 private:
  bool refill();

  std::FILE* file_;
  std::vector<char> buffer_;
  size_t begin_ = 0;
  size_t end_ = 0;
  std::string piece_;
  int line_ = 0;
  bool atLineStart_ = true;
  bool failed_ = false;
};
