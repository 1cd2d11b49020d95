#include "orderbook/order_book_columns.h"

#include "domain/exchange_names.h"
#include "domain/prices.h"

const std::array<const char*, kOrderBookColumnCount>& orderBookColumns() {
  static const std::array<const char*, kOrderBookColumnCount> columns{"OFS Order Number",
                                                                      "Exch Order Number",
                                                                      "Issue ID",
                                                                      "Quantity",
                                                                      "Price",
                                                                      "Status",
                                                                      "Remarks",
                                                                      "OFS Order Date",
                                                                      "Pro/Cli",
                                                                      "Client Id",
                                                                      "Client Name",
                                                                      "PCode",
                                                                      "Dealer Id",
                                                                      "Margin",
                                                                      "Order Type",
                                                                      "Exchange",
                                                                      "CF Status",
                                                                      "Client Category",
                                                                      "GUI Order Number",
                                                                      "Allotted Quantity",
                                                                      "Allotted Price"};
  return columns;
}

namespace {

// Walk-in orders have no account: their walk-in client stands in the client column.
const std::string& clientOf(const sOFSOrderInfo& o) {
  return o.clientId.empty() ? o.walkinClientId : o.clientId;
}

std::string priceText(const std::string& wire) {
  return wire.empty() ? wire : paiseToRupeesText(wire);
}

}  // namespace

std::string orderBookColumnText(const sOFSOrderInfo& o, int column,
                                const std::function<std::string(const std::string&)>& clientName) {
  switch (column) {
    case 0:
      return o.ofsOrderNo;
    case 1:
      return o.field49238;  // the exchange's own order number
    case 2:
      return o.issueId;
    case 3:
      return o.quantity;
    case 4:
      return priceText(o.price);
    case 5:
      return o.status;
    case 6:
      return o.rejectionReason;
    case 7:
      return o.field50110;  // the order's date and time as the back end reports it
    case 8:
      return o.proCliFlag;  // the record's letter, "C" or "F", as the history shows it
    case 9:
      return clientOf(o);
    case 10:
      return clientName ? clientName(clientOf(o)) : std::string();
    case 11:
      return o.pCode;
    case 12:
      return o.field31003;  // the dealer who placed it
    case 13:
      return o.margin;
    case 14:
      return o.priceType;
    case 15:
      return o.exchange.empty() ? std::string() : exchangeScreenName(o.exchange);
    case 16:
      return o.cfStatus;
    case 17:
      return o.field12005;  // 63058, the category, stored over 12005
    case 18:
      return o.guiOrderNo;
    case 19:
      return o.field10308;
    case 20:
      return priceText(o.field10307);
    default:
      return {};
  }
}
