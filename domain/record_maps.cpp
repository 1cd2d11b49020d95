#include "domain/record_maps.h"

#include <algorithm>

#include "domain/exchange_names.h"

void OFSRecords::clear() {
  // Issues point at assets: drop them first.
  issues.clear();
  issuesById.clear();
  orders.clear();
  orderArrivals.clear();
  placedOrders.clear();
  filteredOrders.clear();
  assets.clear();
  categories.clear();
  issueSymbols.clear();
  placedOrderNumbers.clear();
}

std::pair<sOFSOrderInfo*, bool> findOrAddOrder(OFSRecords& records, const std::string& number) {
  RecordMap<sOFSOrderInfo>& orders = records.orders;
  // An order-book reply brings orders by the hundred thousand: growing fourfold rather than
  // twofold halves the rehashing.
  if (orders.size() + 1 > orders.bucket_count() * orders.max_load_factor())
    orders.reserve(std::max<size_t>(64, 4 * orders.size()));
  auto [it, created] = orders.try_emplace(number);
  if (created) {
    it->second = std::make_unique<sOFSOrderInfo>();
    records.orderArrivals.push_back(it->second.get());
  }
  return {it->second.get(), created};
}

std::string assetKey(const sOFSCol& issue) {
  return cashSegmentOf(issue.exchange) + "|" + issue.assetSymbol;
}
