// The refusals the book's commands share, read from an order and its issue.
#pragma once

#include <string>

#include "domain/records.h"

// The issue forbids with "N".
bool biddingClosed(const sOFSCol* issue);
bool modifyCancelClosed(const sOFSCol* issue);
// The carry-forward status that blocks modify, cancel and bulk modify ("Inactive" exactly).
bool cfInactive(const sOFSOrderInfo& order);

inline constexpr char kActiveCfNeeded[] = "please select order with active CF Status";
