// The bid file kinds written back: each row as a line of its kind's layout, which that kind's
// reader takes again.
#pragma once

#include <string>
#include <vector>

#include "basket/bulk_bid_line.h"
#include "domain/file_replace.h"

// The row as a line of its kind, its line feed included. The VT kind writes "CLI" for a client
// row and "PRO" for any other; the other kinds keep the row's leading character, which their
// readers skip.
std::string bidLineText(const BidLine& row);
