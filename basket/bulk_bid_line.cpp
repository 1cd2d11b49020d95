#include "basket/bulk_bid_line.h"

const char* bidFileKindText(BidFileKind kind) {
  switch (kind) {
    case BidFileKind::Neat:
      return "Bids file(NEAT Format)";
    case BidFileKind::Now:
      return "Bids file(NOW Format)";
    case BidFileKind::NowModCxl:
      return "Bids Mod/cxl File (NOW Format)";
    case BidFileKind::Vt:
      break;
  }
  return "VT Format";
}

void BidLine::setField(size_t n, size_t offset, size_t length) {
  if (n >= kMaxFields) return;
  spans_[n] = {static_cast<uint16_t>(offset), static_cast<uint16_t>(length)};
  if (n >= count_) count_ = static_cast<uint8_t>(n + 1);
}

std::span<const BidColumn> bidFileColumns(BidFileKind kind) {
  using namespace bid_detail;
  switch (kind) {
    case BidFileKind::Neat:
      return kNeatColumns;
    case BidFileKind::Now:
      return kNowColumns;
    case BidFileKind::NowModCxl:
      return kNowModCxlColumns;
    case BidFileKind::Vt:
      break;
  }
  return kVtColumns;
}
