// A bid keyed by hand on the bulk upload screen. It becomes a row of the VT grid, so it is
// written as a VT line and read back the way a file's line is.
#pragma once

#include <string>

#include "domain/records.h"

struct BulkEntry {
  std::string ofsId;  // the issue id
  std::string exchange = "NSEIPO";
  std::string quantity;
  std::string price;  // rupees, or "MKT" with the cut-off box ticked
  std::string orderType;
  std::string proCli = "CLI";  // "PRO" or "CLI"
  std::string clientId;
  std::string category;
  std::string pCode;
  std::string margin = "100% Margin";  // or "No Margin"
  bool cutOff = false;
};

// The entry's own checks, before the VT line checks; empty when it passes. `issue` may be null.
std::string checkBulkEntry(const BulkEntry& entry, const sOFSCol* issue);
// The entry as a line of the VT layout, its line feed included.
std::string vtLineOf(const BulkEntry& entry);
