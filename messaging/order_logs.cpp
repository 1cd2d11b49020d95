// Placement and modification answers: the placed-order record and the tabbed-log lines.
#include "domain/exchange_names.h"
#include "domain/prices.h"
#include "messaging/dispatch_steps.h"
#include "messaging/placed_order_fill.h"
#include "messaging/text_format.h"

namespace {

// Every placement line says "NSE_IPO", for BSE orders too: intended, must stay.
constexpr const char* kPlacedExchange = "NSE_IPO";
constexpr const char* kPlacedPrefix = " OFS Order Placed -- ";

std::string pCodeShown(DispatchContext& context, const std::string& pCode) {
  return pCode.empty() ? context.defaultPCode() : pCode;
}

// Stores the order under its number when new; false for an issue we have no summary of.
bool recordPlacement(DispatchContext& context, const sOFSOrderInfo& placed) {
  OFSRecords& records = context.records();
  const sOFSIssueSummary* issue = findRecord(records.issuesById, placed.issueId);
  if (!issue) return false;
  auto [it, created] = records.placedOrders.try_emplace(placed.ofsOrderNo);
  if (created) {
    it->second = std::make_unique<sOFSOrderInfo>(placed);
    copyIssueNumbers(*issue, *it->second);
    records.placedOrderNumbers.push_back(placed.ofsOrderNo);
  }
  return true;
}

bool hasOrderAndIssue(const MessageView& row) {
  return row.has(64001) && row.has(63100);
}

}  // namespace

void handlePlacedOrderRow(DispatchContext& context, const MessageView& row) {
  sOFSOrderInfo placed;
  fillPlacedOrder(row, placed);
  if (!recordPlacement(context, placed)) return;
  context.tabbedLog(
      kPlacedPrefix +
      formatText("Exchange : %s Client ID : %s Issue ID : %s Quantity : %s Price : %s PCode : %s ",
                 kPlacedExchange, placed.clientId.c_str(), placed.issueId.c_str(),
                 placed.quantity.c_str(), paiseToRupeesText(placed.price).c_str(),
                 pCodeShown(context, placed.pCode).c_str()));
}

void handlePlacedWalkinOrderRow(DispatchContext& context, const MessageView& row) {
  sOFSOrderInfo placed;
  fillPlacedWalkinOrder(row, placed);
  if (!recordPlacement(context, placed)) return;
  // Two blanks after "Exchange :" and none before "Walkin Client ID:": the walk-in line's own.
  context.tabbedLog(
      kPlacedPrefix +
      formatText("Exchange :  %s Issue ID : %s Walkin Client ID: %s Quantity : %s Price : %s "
                 "PCode : %s ",
                 kPlacedExchange, placed.issueId.c_str(), placed.walkinClientId.c_str(),
                 placed.quantity.c_str(), paiseToRupeesText(placed.price).c_str(),
                 pCodeShown(context, placed.pCode).c_str()));
}

void handleModifiedOrderRow(DispatchContext& context, const MessageView& row) {
  if (!hasOrderAndIssue(row)) return;
  context.tabbedLog(formatText(
      "Order modified for Exchange : %s Client ID : %s Issue ID : %s Quantity : %s Price : %s "
      "PCode : %s ",
      exchangeScreenName(row.text(63001)).c_str(), row.text(54001).c_str(), row.text(63100).c_str(),
      row.text(12004).c_str(), paiseToRupeesText(answeredPrice(row)).c_str(),
      answeredPCode(row).c_str()));
}

void handleModifiedWalkinOrderRow(DispatchContext& context, const MessageView& row) {
  if (!hasOrderAndIssue(row)) return;
  // Walk-in modifications always say "NSE_IPO", like the placement lines: intended.
  context.tabbedLog(formatText(
      "Order modified for Exchange : %s Walkin Client ID : %s Issue ID : %s Quantity : %s "
      "Price : %s PCode : %s ",
      kPlacedExchange, row.text(64916).c_str(), row.text(63100).c_str(), row.text(12004).c_str(),
      paiseToRupeesText(answeredPrice(row)).c_str(), row.text(10332).c_str()));
}
