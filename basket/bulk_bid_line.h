// One line of a bulk bid file as read: the line's text kept once, its fields as places in it.
// A million loaded lines must not cost a million sets of strings.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// The four kinds of bid file, numbered as the "File Type" list of the upload screen counts them.
enum class BidFileKind : uint8_t { Neat = 1, Now = 2, NowModCxl = 3, Vt = 4 };

// The entry the upload screen's "File Type" list shows for a kind.
const char* bidFileKindText(BidFileKind kind);

// Every field any kind holds; a kind without a column gives an empty text for it.
enum class BidColumn : uint8_t {
  BookType,
  BuySell,
  Symbol,
  Series,
  Quantity,
  Price,
  ProCli,
  ClientId,  // the account number of the NEAT kind
  PCode,
  Margin,  // the block collateral: "01"/"02", "YES"/"NO" or the VT margin text
  WalkinCode,
  WalkinName,
  ModCxl,
  NowOrderNumber,
  NowClientType,
  Exchange,
  IssueId,
  CutOff,
  OrderType,
  Category,
  Count,
};

namespace bid_detail {

using C = BidColumn;
using ColumnPlaces = std::array<int8_t, static_cast<size_t>(C::Count)>;

// Each kind's fields in the file's order: what its reader takes and its writer writes.
inline constexpr std::array<C, 0> kNoColumns{};
inline constexpr std::array kNeatColumns{C::BookType, C::BuySell, C::Symbol, C::Series,
                                         C::Quantity, C::Price,   C::ProCli, C::ClientId,
                                         C::PCode,    C::Margin};
inline constexpr std::array kNowColumns{C::NowClientType, C::Symbol,     C::Series,    C::Quantity,
                                        C::Price,         C::ProCli,     C::ClientId,  C::PCode,
                                        C::Margin,        C::WalkinCode, C::WalkinName};
inline constexpr std::array kNowModCxlColumns{
    C::NowClientType, C::NowOrderNumber, C::Symbol, C::Series, C::Quantity,   C::Price,
    C::ProCli,        C::ClientId,       C::PCode,  C::Margin, C::WalkinCode, C::ModCxl};
inline constexpr std::array kVtColumns{C::Exchange, C::ProCli,    C::ClientId, C::PCode,
                                       C::IssueId,  C::Quantity,  C::Price,    C::Margin,
                                       C::CutOff,   C::OrderType, C::Category};

// Where each column stands in a kind's file (0 is the first field, -1 none).
template <size_t N>
constexpr ColumnPlaces placesOf(const std::array<C, N>& fileOrder) {
  ColumnPlaces places{};
  for (auto& p : places) p = -1;
  int8_t n = 0;
  for (C c : fileOrder) places[static_cast<size_t>(c)] = n++;
  return places;
}

// By kind number; the accessors are inline because the checks ask for fields many times a line.
inline constexpr std::array<ColumnPlaces, 5> kPlaces = {
    placesOf(kNoColumns),        placesOf(kNeatColumns), placesOf(kNowColumns),
    placesOf(kNowModCxlColumns), placesOf(kVtColumns),
};

}  // namespace bid_detail

// A kind's fields in the file's order.
std::span<const BidColumn> bidFileColumns(BidFileKind kind);

class BidLine {
 public:
  // The most fields a kind stores; further fields of a VT line are not kept.
  static constexpr size_t kMaxFields = 12;

  BidLine() = default;
  BidLine(BidFileKind kind, std::string_view text) : text_(text), kind_(kind) {}

  // Starts the line afresh as `text` of `kind`, keeping the text's buffer when it is big enough.
  void reset(BidFileKind kind, std::string_view text) {
    text_.assign(text);
    kind_ = kind;
    count_ = 0;
  }

  BidFileKind kind() const { return kind_; }
  // The line as read, its line end included.
  const std::string& text() const { return text_; }
  // The field exactly as it stood between the commas. In the VT kind the pro/cli reads "C" for
  // "CLI" and "F" for "PRO", as the upload grid shows it.
  std::string_view field(BidColumn column) const {
    const std::string_view text = raw(column);
    if (kind_ != BidFileKind::Vt || column != BidColumn::ProCli) return text;
    return text == "CLI" ? "C" : text == "PRO" ? "F" : text;
  }
  std::string_view operator[](BidColumn column) const { return field(column); }

  // For the readers: the file's n-th field (0 is the first) lies at `offset`, `length` long.
  void setField(size_t n, size_t offset, size_t length);
  size_t fieldCount() const { return count_; }

 private:
  // The 1,023-byte pieces of the readers fit easily; offsets are 16 bits to keep rows small.
  struct Span {
    uint16_t offset = 0;
    uint16_t length = 0;
  };

  std::string_view raw(BidColumn column) const {
    const auto kind = std::min(static_cast<size_t>(kind_), bid_detail::kPlaces.size() - 1);
    const int8_t place = bid_detail::kPlaces[kind][static_cast<size_t>(column)];
    if (place < 0 || place >= count_) return {};
    const Span s = spans_[static_cast<size_t>(place)];
    return std::string_view(text_.data() + s.offset, s.length);
  }

  std::string text_;
  std::array<Span, kMaxFields> spans_{};
  BidFileKind kind_ = BidFileKind::Vt;
  uint8_t count_ = 0;
};
