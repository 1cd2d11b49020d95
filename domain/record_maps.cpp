#include "domain/record_maps.h"

#include "domain/exchange_names.h"

void OFSRecords::clear() {
  // Issues point at assets: drop them first.
  issues.clear();
  issuesById.clear();
  orders.clear();
  placedOrders.clear();
  filteredOrders.clear();
  assets.clear();
  categories.clear();
  issueSymbols.clear();
  placedOrderNumbers.clear();
}

std::string assetKey(const sOFSCol& issue) {
  return cashSegmentOf(issue.exchange) + "|" + issue.assetSymbol;
}
