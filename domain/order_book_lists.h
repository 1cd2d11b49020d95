// The order book's two lists and the rules that move orders between them.
#pragma once

#include <string>

#include "domain/book_list.h"
#include "domain/record_maps.h"

struct OrderBookLists {
  BookList open{0};    // "Open Orders"
  BookList closed{1};  // "Completed Orders"
};

// "open" and "open pending", compared exactly.
bool isOpenStatus(const std::string& status);
// "cancelled", "rejected" and "complete", compared exactly.
bool isClosedStatus(const std::string& status);

// An order a live update has just refilled: a new one goes on the top line of its list, a known
// one is repainted or moved by its status.
void placeUpdatedOrder(sOFSOrderInfo& order, bool created, OrderBookLists& book);

// Both lists from the orders map: highest order number (compared byte-wise) on top; an order
// whose status is not open in any way stands in the closed list.
void rebuildOrderBook(const OFSRecords& records, OrderBookLists& book);
