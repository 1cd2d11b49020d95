// Filling an order record from a reported order, and the word conversions it applies.
#pragma once

#include <string>

#include "domain/records.h"
#include "messaging/field_readers.h"

// An order as the order book, an order-book reply row or a live update reports it.
void fillReportedOrder(const MessageView& row, sOFSOrderInfo& order);
// A row of "om_filter_order_ofs".
void fillFilteredOrder(const MessageView& row, sOFSOrderInfo& order);

// "MKT" and "L" are taken; any other word leaves `priceType` as it was.
void applyPriceType(const std::string& wire, std::string& priceType);
// "YES" becomes "100% Margin", "NO" "No Margin"; any other word leaves `margin` as it was.
void applyMarginWord(const std::string& wire, std::string& margin);
// "C" and "F" are taken; any other letter leaves `flag` as it was.
void applyProCliFlag(const std::string& wire, std::string& flag);
