#include "basket/bulk_bid_writers.h"

#include <cstdio>
#include <vector>

using C = BidColumn;

namespace {

using Columns = std::vector<C>;

// The fields of each kind's line, in the file's order.
const Columns& columnsOf(BidFileKind kind) {
  static const Columns neat = {C::BookType, C::BuySell, C::Symbol,   C::Series, C::Quantity,
                               C::Price,    C::ProCli,  C::ClientId, C::PCode,  C::Margin};
  static const Columns now = {C::NowClientType, C::Symbol,     C::Series,    C::Quantity,
                              C::Price,         C::ProCli,     C::ClientId,  C::PCode,
                              C::Margin,        C::WalkinCode, C::WalkinName};
  static const Columns modCxl = {C::NowClientType, C::NowOrderNumber, C::Symbol,     C::Series,
                                 C::Quantity,      C::Price,          C::ProCli,     C::ClientId,
                                 C::PCode,         C::Margin,         C::WalkinCode, C::ModCxl};
  static const Columns vt = {C::Exchange, C::ProCli,    C::ClientId, C::PCode,
                             C::IssueId,  C::Quantity,  C::Price,    C::Margin,
                             C::CutOff,   C::OrderType, C::Category};
  switch (kind) {
    case BidFileKind::Neat:
      return neat;
    case BidFileKind::Now:
      return now;
    case BidFileKind::NowModCxl:
      return modCxl;
    case BidFileKind::Vt:
      break;
  }
  return vt;
}

std::string_view vtField(const BidLine& row, C column) {
  if (column == C::ProCli) return row[C::ProCli] == "C" || row[C::ProCli] == "CLI" ? "CLI" : "PRO";
  if (column == C::Margin) return row[C::Margin] == "No Margin" ? "No Margin" : "100% Margin";
  return row[column];
}

}  // namespace

std::string bidLineText(const BidLine& row) {
  const bool vt = row.kind() == BidFileKind::Vt;
  std::string line;
  // The NEAT and NOW readers never look at a line's first character, so it goes back as read.
  if (!vt) line += row.text().empty() ? ' ' : row.text().front();
  bool first = true;
  for (C column : columnsOf(row.kind())) {
    if (!first) line += ',';
    first = false;
    line += vt ? vtField(row, column) : row[column];
  }
  return line += '\n';
}
