// What a bid is held against, read from the issue record: the price band, the amount limits,
// the closing time and the cut-off allowance. The mapping of the record's fields lives here.
#pragma once

#include <cstdint>
#include <string>

#include "domain/records.h"

// Floor and ceiling of a price range text.
struct PriceBand {
  std::string floor;
  std::string ceiling;
};

// "floor-ceiling" of the issue's price band (fields 63022 and 63023).
std::string priceRangeOf(const sOFSCol& issue);
// Split at the first "-"; without one the whole text is the floor.
PriceBand splitPriceRange(const std::string& range);

const std::string& ceilingPriceOf(const sOFSCol& issue);     // the upper end of the band
const std::string& retailLimitOf(const sOFSCol& issue);      // "Retail Limit"
const std::string& nonRetailLimitOf(const sOFSCol& issue);   // "Non Retail Individual Limit"
const std::string& closingTimeOf(const sOFSCol& issue);      // "HH:MM:SS", empty when none
const std::string& cutOffAllowanceOf(const sOFSCol& issue);  // "Y" when cut-off bids are allowed
const std::string& indicativePriceOf(const sOFSCol& issue);
// The tick size in whole paise, truncated.
int64_t tickPaiseOf(const sOFSCol& issue);

// True when `now` (seconds since 1970) is later than today's `closingTime` ("H:M:S", local).
bool isPastClosingTime(const std::string& closingTime, int64_t now);
