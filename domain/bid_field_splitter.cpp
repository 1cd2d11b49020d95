#include "domain/bid_field_splitter.h"

#include <algorithm>

namespace {

// A plain loop: find_first_of would search the three ends once for every character.
bool endsField(char c) {
  return c == ',' || c == '\n' || c == '\r';
}

}  // namespace

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
  size_t stop = from;
  while (stop < line_.size() && !endsField(line_[stop])) ++stop;
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
