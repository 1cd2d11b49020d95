// The order book's two lists and the rules that move orders between them.
#pragma once

#include <string>

#include "domain/record_maps.h"
#include "messaging/field_readers.h"
#include "orderbook/book_list.h"

struct OrderBookLists {
  BookList open{0};    // "Open Orders"
  BookList closed{1};  // "Completed Orders"
};

// "open" and "open pending", compared exactly.
bool isOpenStatus(const std::string& status);
// "cancelled", "rejected" and "complete", compared exactly.
bool isClosedStatus(const std::string& status);

// A live order update: refills a known order and moves it by its status, or creates a new one
// on the top line of its list. A row without 64001 is ignored.
void applyOrderUpdate(OFSRecords& records, OrderBookLists& book, const MessageView& row);

// Both lists from the orders map: highest order number (compared byte-wise) on top; an order
// whose status is not open in any way stands in the closed list.
void rebuildOrderBook(const OFSRecords& records, OrderBookLists& book);
