// The comma field splitter every CSV reader of the product uses.
#pragma once

#include <span>
#include <string>
#include <string_view>

class BidFieldSplitter {
 public:
  // Longer fields are cut to this many characters; the next field still starts after the comma.
  static constexpr size_t kFieldLimit = 127;

  // From start 0 the line's first character belongs to no field; the basket and the exchanges'
  // bid readers start there on purpose and their files carry that extra character, so it
  // must stay. From start -1 the first field begins at the first character.
  BidFieldSplitter(std::string_view line, long start) : line_(line), position_(start) {}

  // The next field into `field`: it ends at a comma, a carriage return, a line feed or the end
  // of the text. False once the line has given its last field. A line that ends without a line
  // feed, or with a carriage return, gives one empty field more after its last one.
  bool next(std::string& field);
  // The same field as a view into the line, for readers that keep the line and not the fields.
  bool next(std::string_view& field);
  // The first fields.size() fields at most; returns how many were filled.
  size_t split(std::span<std::string> fields);

 private:
  static constexpr long kDone = -1;

  std::string_view line_;
  long position_;
  bool done_ = false;
};
