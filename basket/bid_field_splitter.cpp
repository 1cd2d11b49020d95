#include "basket/bid_field_splitter.h"

#include <algorithm>

bool BidFieldSplitter::next(std::string& field) {
  std::string_view view;
  if (!next(view)) return false;
  field.assign(view);
  return true;
}

bool BidFieldSplitter::next(std::string_view& field) {
  if (done_) return false;
  const long p = position_;
  const auto size = static_cast<long>(line_.size());
  field = line_.substr(line_.size());
  if (p != 0 && p != kDone && (p >= size || line_[p] != ',')) {
    done_ = true;
    return true;
  }
  const size_t from = static_cast<size_t>(std::min(p + 1, size));
  const size_t stop = std::min(line_.find_first_of(",\r\n", from), line_.size());
  field = line_.substr(from, std::min(stop - from, kFieldLimit));
  done_ = stop < line_.size() && line_[stop] == '\n';
  position_ = static_cast<long>(stop);
  return true;
}

size_t BidFieldSplitter::split(std::span<std::string> fields) {
  size_t count = 0;
  while (count < fields.size() && next(fields[count])) ++count;
  return count;
}
