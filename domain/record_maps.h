// The record maps the control block owns: every record is owned by its map and freed with it.
#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "domain/records.h"

template <class Record>
using RecordMap = std::unordered_map<std::string, std::unique_ptr<Record>>;

struct OFSRecords {
  RecordMap<sOFSCol> issues;                // by symbol (10100)
  RecordMap<sOFSIssueSummary> issuesById;   // by issue id (63032)
  RecordMap<sOFSOrderInfo> orders;          // by OFS order number; add through findOrAddOrder
  RecordMap<sOFSOrderInfo> placedOrders;    // by OFS order number
  RecordMap<sOFSOrderInfo> filteredOrders;  // by OFS order number
  RecordMap<sAssetInfo> assets;             // by "cash segment|asset symbol"
  std::unordered_map<std::string, std::vector<std::string>> categories;  // by category (10610)
  std::vector<sOFSOrderInfo*> orderArrivals;    // every order of `orders`, in order of arrival
  std::vector<std::string> issueSymbols;        // in order of arrival
  std::vector<std::string> placedOrderNumbers;  // in order of arrival

  void clear();
};

// The record under `key`, or null.
template <class Record>
Record* findRecord(const RecordMap<Record>& map, const std::string& key) {
  auto it = map.find(key);
  return it == map.end() ? nullptr : it->second.get();
}

// The order under `number` and true when it was created just now (empty, and counted among
// the arrivals), or the known order and false.
std::pair<sOFSOrderInfo*, bool> findOrAddOrder(OFSRecords& records, const std::string& number);

// "%s|%s" of the issue's cash segment and its asset symbol.
std::string assetKey(const sOFSCol& issue);
