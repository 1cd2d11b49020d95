#include "basket/bulk_bid_line.h"

namespace {

using C = BidColumn;
constexpr int8_t kAbsent = -1;
using ColumnPlaces = std::array<int8_t, static_cast<size_t>(C::Count)>;

// Where each column stands in a kind's file (0 is the first field), from the file's column list.
constexpr ColumnPlaces placesOf(std::initializer_list<C> fileOrder) {
  ColumnPlaces places{};
  for (auto& p : places) p = kAbsent;
  int8_t n = 0;
  for (C c : fileOrder) places[static_cast<size_t>(c)] = n++;
  return places;
}

constexpr ColumnPlaces kNeat = placesOf({C::BookType, C::BuySell, C::Symbol, C::Series, C::Quantity,
                                         C::Price, C::ProCli, C::ClientId, C::PCode, C::Margin});
constexpr ColumnPlaces kNow =
    placesOf({C::NowClientType, C::Symbol, C::Series, C::Quantity, C::Price, C::ProCli, C::ClientId,
              C::PCode, C::Margin, C::WalkinCode, C::WalkinName});
constexpr ColumnPlaces kNowModCxl =
    placesOf({C::NowClientType, C::NowOrderNumber, C::Symbol, C::Series, C::Quantity, C::Price,
              C::ProCli, C::ClientId, C::PCode, C::Margin, C::WalkinCode, C::ModCxl});
constexpr ColumnPlaces kVt =
    placesOf({C::Exchange, C::ProCli, C::ClientId, C::PCode, C::IssueId, C::Quantity, C::Price,
              C::Margin, C::CutOff, C::OrderType, C::Category});

const ColumnPlaces& placesFor(BidFileKind kind) {
  switch (kind) {
    case BidFileKind::Neat:
      return kNeat;
    case BidFileKind::Now:
      return kNow;
    case BidFileKind::NowModCxl:
      return kNowModCxl;
    case BidFileKind::Vt:
      break;
  }
  return kVt;
}

}  // namespace

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

std::string_view BidLine::raw(BidColumn column) const {
  const int8_t place = placesFor(kind_)[static_cast<size_t>(column)];
  if (place == kAbsent || static_cast<size_t>(place) >= count_) return {};
  const Span s = spans_[static_cast<size_t>(place)];
  return std::string_view(text_).substr(s.offset, s.length);
}

std::string_view BidLine::field(BidColumn column) const {
  const std::string_view text = raw(column);
  if (kind_ != BidFileKind::Vt || column != BidColumn::ProCli) return text;
  if (text == "CLI") return "C";
  if (text == "PRO") return "F";
  return text;
}
