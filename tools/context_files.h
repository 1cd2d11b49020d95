// The files that give `ofs-check bids` what the terminal would know: issues, accounts and
// orders. Each returns false with `error` set when the file cannot be read.
#pragma once

#include <string>

#include "basket/bulk_bid_context.h"

// The issue file layout the issue list is exported in, read as the issue upload reads it: only
// the lines it accepts become issues. The file carries no issue number, so an issue's id is
// its symbol name and series word, "ABC-Retail".
bool readIssueFile(const std::string& path, BidLookups& lookups, std::string& error);
// "account,participant code" a line; the code may be empty.
bool readAccountsFile(const std::string& path, BidLookups& lookups, std::string& error);
// "order number,status,symbol-series,account,participant code,quantity,price in paise" a line:
// the user's orders a modify/cancel file may name.
bool readOrdersFile(const std::string& path, BidLookups& lookups, std::string& error);
