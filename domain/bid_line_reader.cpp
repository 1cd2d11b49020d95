#include "domain/bid_line_reader.h"

#include <algorithm>
#include <cstring>

bool BidLineReader::refill() {
  begin_ = 0;
  end_ = std::fread(buffer_.data(), 1, buffer_.size(), file_);
  if (end_ == 0 && std::ferror(file_)) failed_ = true;
  return end_ > 0;
}

bool BidLineReader::next(std::string_view& text) {
  piece_.clear();
  bool lineEnded = false;
  while (!lineEnded && piece_.size() < kPieceLimit && !failed_) {
    if (begin_ == end_ && !refill()) break;
    const size_t room = std::min(end_ - begin_, kPieceLimit - piece_.size());
    const char* from = buffer_.data() + begin_;
    const void* feed = std::memchr(from, '\n', room);
    const size_t taken = feed ? static_cast<const char*>(feed) - from + 1 : room;
    piece_.append(from, taken);
    begin_ += taken;
    lineEnded = feed != nullptr;
  }
  if (piece_.empty() || failed_) return false;
  if (atLineStart_) ++line_;
  atLineStart_ = lineEnded;
  text = std::string_view(piece_.data(), std::strlen(piece_.c_str()));
  return true;
}
