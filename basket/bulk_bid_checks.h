// The check sequences of the four bid file kinds. Each takes a line its kind's reader took and
// returns the first failing step's exact text, or an empty text when the line becomes a bid.
#pragma once

#include <string>

#include "basket/bulk_bid_context.h"
#include "basket/bulk_bid_line.h"
#include "domain/place_order.h"

std::string checkNeatLine(const BidLine& line, const BidContext& context);
std::string checkNowLine(const BidLine& line, const BidContext& context);
std::string checkNowModCxlLine(const BidLine& line, const BidContext& context);
std::string checkVtLine(const BidLine& line, const BidContext& context);
std::string checkBidLine(const BidLine& line, const BidContext& context);

// The order a checked line places, as the upload screen sends it: buy side, the margin flag of
// the kind, cut-off for "MKT", "SYM-SERIES" and the client type the pro/cli and client id give.
sOFSPlaceOrder placeOrderOf(const BidLine& line, const BidContext& context);
// The client type a bid of this pro/cli word ("PRO", "CLI", ...) and client id is sent as.
std::string bidClientType(std::string_view proCli, std::string_view clientId);
// The pro/cli word of a line: a VT line's "F" and "C" stand for "PRO" and "CLI".
std::string bidProCliWord(std::string_view proCli);
