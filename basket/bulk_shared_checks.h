// The steps the bid file kinds share: text tests, the price check, the checks against the issue.
#pragma once

#include <string>
#include <string_view>

#include "basket/bulk_bid_context.h"
#include "basket/bulk_bid_line.h"
#include "domain/char_classes.h"

namespace bulk {

inline constexpr char kInvalidPrice[] = "Invalid Price";
inline constexpr char kMarketPrice[] = "MKT";

// Empty or a single blank: what the exchanges' files call "not mentioned".
inline bool isBlankOrSpace(std::string_view text) {
  return text.empty() || text == " ";
}
// Empty, or blanks and nothing else.
inline bool isEmptyOrBlanks(std::string_view text) {
  return text.empty() || isAllBlanks(text);
}

// A price that is not "MKT", against the issue's tick when the issue is known.
std::string checkBidPrice(std::string_view price, const sOFSCol* issue);

// The issue a NEAT or NOW line is for, when issues can be looked up.
const sOFSCol* issueOfLine(const BidLine& line, const BidContext& context);
// NEAT and NOW lines against `issue`, the one issueOfLine found; skipped without issue lookups.
std::string checkAgainstIssue(const BidLine& line, const BidContext& context, const sOFSCol* issue);

}  // namespace bulk
