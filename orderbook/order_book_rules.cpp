#include "orderbook/order_book_rules.h"

bool biddingClosed(const sOFSCol* issue) {
  return issue && issue->biddingFlag == "N";
}

bool modifyCancelClosed(const sOFSCol* issue) {
  return issue && issue->modifyCancelFlag == "N";
}

bool cfInactive(const sOFSOrderInfo& order) {
  return order.cfStatus == "Inactive";
}
