#include "messaging/placed_order_fill.h"

#include "messaging/field_table.h"
#include "messaging/order_fill.h"

namespace {

using O = sOFSOrderInfo;

constexpr TextField<O> kPlacedFields[] = {
    {54001, &O::clientId},   {63100, &O::issueId},    {12004, &O::quantity},
    {12005, &O::field12005}, {64001, &O::ofsOrderNo}, {63001, &O::exchange},
};

constexpr TextField<O> kPlacedWalkinFields[] = {
    {64916, &O::walkinClientId}, {63100, &O::issueId},    {12004, &O::quantity},
    {12005, &O::field12005},     {64001, &O::ofsOrderNo}, {63001, &O::exchange},
    {10332, &O::pCode},
};

}  // namespace

std::string answeredPrice(const MessageView& row) {
  return row.text(32760) == "MKT" ? "MKT" : row.text(10306);
}

std::string answeredPCode(const MessageView& row) {
  return row.text(row.text(63001) == "bse_ipo" ? 64739 : 10332);
}

void fillPlacedOrder(const MessageView& row, sOFSOrderInfo& order) {
  fillText<O>(row, order, kPlacedFields);
  applyMarginWord(row.text(64170), order.margin);
  order.price = answeredPrice(row);
  order.pCode = answeredPCode(row);
}

void fillPlacedWalkinOrder(const MessageView& row, sOFSOrderInfo& order) {
  fillText<O>(row, order, kPlacedWalkinFields);
  order.price = answeredPrice(row);
}

void copyIssueNumbers(const sOFSIssueSummary& issue, sOFSOrderInfo& order) {
  if (issue.issueId.empty()) return;
  order.issueTickSize = issue.tickSize;
  order.issueMinQuantity = issue.minQuantity;
  order.issueLotSize = textToLong(issue.lotSize.data(), issue.lotSize.size());
}
