#include "orderbook/order_book.h"

#include "orderbook/order_book_rules.h"

const std::vector<OrderBookCommand>& orderBookCommands() {
  static const std::vector<OrderBookCommand> commands{
      {OrderBookCommand::Modify, "Modify Order", "Shift+F1"},
      {OrderBookCommand::Cancel, "Cancel Order", "Delete"},
      {OrderBookCommand::History, "OFS Order History", "Shift+F2"},
      {OrderBookCommand::BulkModify, "Bulk Modify Order", "Shift+B"},
      {OrderBookCommand::CarryForward, "Carry Forward", ""},
  };
  return commands;
}

namespace {

// The checks of each selected line before anything is asked; false when one stops the command.
bool collectCancellable(OrderBookPort& port, const std::vector<sOFSOrderInfo*>& selected,
                        std::vector<sOFSOrderInfo*>& set) {
  for (sOFSOrderInfo* order : selected) {
    const sOFSCol* issue = port.issueOfOrder(*order);
    if (biddingClosed(issue)) {
      port.prompt().message("Cancellation of bid not allowed. Please contact Administrator");
      return false;
    }
    if (modifyCancelClosed(issue)) {
      port.prompt().message("Bid not allowed to Cancel");
      return false;
    }
    if (cfInactive(*order)) {
      port.prompt().message(kActiveCfNeeded);
      return false;
    }
    if (order->status != "open") {
      port.prompt().message("Plese select a open order");
      continue;
    }
    set.push_back(order);
  }
  return true;
}

std::string cancelQuestion(const std::vector<sOFSOrderInfo*>& set) {
  if (set.size() == 1) return "Do you want to cancel Order No: " + set.front()->ofsOrderNo + " ";
  return "You have selected " + std::to_string(set.size()) + " Orders to Cancel. Proceed?";
}

}  // namespace

bool COrderBookDlgBar::cancelOrders(const std::vector<sOFSOrderInfo*>& selected) {
  std::vector<sOFSOrderInfo*> set;
  if (!collectCancellable(port_, selected, set) || set.empty()) return false;
  if (!port_.prompt().question(cancelQuestion(set))) return false;
  for (const sOFSOrderInfo* order : set) {
    if (order->margin == "No Margin" && order->exchange == "nse_ipo") {
      port_.prompt().message(
          "Order cancellation not allowed (in case Institutional orders with 0% margin)");
      continue;
    }
    if (order->cfStatus == "inactive" || order->cfStatus == "Inactive") {
      port_.prompt().message("Orders with Inactive status cannot be cancelled");
      break;
    }
    if (order->clientId.empty()) {
      cancelWalkinOrder(port_.orderContext(), *order);
    } else {
      cancelOfsOrder(port_.orderContext(), *order);
    }
  }
  return true;
}

void COrderBookDlgBar::modifyOrder(const sOFSOrderInfo* order, ModifyPath path) {
  const char* notOpen =
      path == ModifyPath::Menu ? "Please select an open order." : "Please select a open order.";
  if (!order) return port_.prompt().message(notOpen);
  const sOFSCol* issue = port_.issueOfOrder(*order);
  if (biddingClosed(issue))
    return port_.prompt().message("Modification of bid not allowed. Please contact Administrator");
  if (modifyCancelClosed(issue)) return port_.prompt().message("Bid not allowed to Modify");
  if (cfInactive(*order)) return port_.prompt().message(kActiveCfNeeded);
  // Order entry needs the issue's terms: an order of an issue not (or no longer) listed cannot
  // be modified from here.
  if (order->ofsOrderNo.empty() || order->status != "open" || !issue)
    return port_.prompt().message(notOpen);
  launcher_.openOrderModification(*order, *issue);
}

void COrderBookDlgBar::showHistory(const sOFSOrderInfo* focused) {
  if (!focused || focused->ofsOrderNo.empty()) return launcher_.askHistoryOrderNumber();
  launcher_.openHistory(focused->ofsOrderNo);
}
