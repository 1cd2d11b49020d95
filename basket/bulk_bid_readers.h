// The readers of the four bid file kinds: one piece of a file (at most 1,023 bytes, its line
// end included, as BidLineReader hands them out) into a BidLine, or the reader's refusal.
#pragma once

#include <string>
#include <string_view>

#include "basket/bulk_bid_line.h"

// Each returns an empty text and fills `line` when it takes the line, else the refusal. A longer
// text is read as its first piece only: the rest belongs to the pieces after it.
std::string readNeatLine(std::string_view text, BidLine& line);
std::string readNowLine(std::string_view text, BidLine& line);
std::string readNowModCxlLine(std::string_view text, BidLine& line);
std::string readVtLine(std::string_view text, BidLine& line);
std::string readBidLine(BidFileKind kind, std::string_view text, BidLine& line);
