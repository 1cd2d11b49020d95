#include "orderbook/order_history_columns.h"

#include "domain/exchange_names.h"
#include "domain/number_text.h"

const std::array<const char*, kHistoryColumnCount>& historyColumns() {
  static const std::array<const char*, kHistoryColumnCount> columns{
      "Date/Time", "Price", "Total Qty", "Status", "GUI Order Number"};
  return columns;
}

namespace {

// Unlike the order book, the history reads the price as a whole number of paise first, so a
// fraction of a paisa on the wire is cut, not rounded.
std::string priceText(const std::string& wire) {
  if (wire == "MKT") return wire;
  return fixedText(static_cast<double>(leadingInt64(wire)) / 100.0, 2);
}

}  // namespace

std::string historyColumnText(const sOFSOrderInfo& row, int column) {
  switch (column) {
    case 0:
      // A row without a time still shows the point and the fraction.
      return row.timeText + "." + std::to_string(row.timeFraction);
    case 1:
      return priceText(row.price);
    case 2:
      return row.quantity;
    case 3:
      return row.status;
    case 4:
      return row.guiOrderNo;
    default:
      return {};
  }
}

const std::array<const char*, kHistoryDetailCount>& historyDetailLabels() {
  static const std::array<const char*, kHistoryDetailCount> labels{
      "Exhg. Seg:",       "Issue ID:", "Pro/Cli:", "Account Id:",      "VornOrderNo:",
      "ExchangeOrderNo:", "User Id:",  "Pan No:",  "Rejection Reason:"};
  return labels;
}

std::array<std::string, kHistoryDetailCount> historyDetails(const sOFSOrderInfo& row) {
  return {exchangeScreenName(row.exchange),
          row.issueId,
          row.proCliFlag,
          row.clientId,
          row.ofsOrderNo,
          row.field49238,
          row.field31003,
          row.walkinClientId,
          row.rejectionReason};
}
