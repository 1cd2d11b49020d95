#include "basket/bulk_bid_writers.h"

using C = BidColumn;

namespace {

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
  for (C column : bidFileColumns(row.kind())) {
    if (!first) line += ',';
    first = false;
    line += vt ? vtField(row, column) : row[column];
  }
  return line += '\n';
}
