#include "host/sim/bid_checks.h"

#include "host/sim/issue_rows.h"
#include "host/sim/sim_dates.h"
#include "host/sim/sim_numbers.h"

namespace sim {

namespace {

using namespace issue_field;

MaybeRefusal quantityRefusal(const Issue& issue, int64_t quantity) {
  const int64_t minimum = parseCount(issue.get(kMinQuantity)).value_or(1);
  const int64_t lot = parseCount(issue.get(kLot)).value_or(1);
  if (quantity < minimum) return belowMinimumQuantity(quantity, minimum);
  if (lot > 0 && quantity % lot != 0) return notLotMultiple(quantity, lot);
  return std::nullopt;
}

MaybeRefusal priceRefusal(const Issue& issue, const std::string& priceType, int64_t paise) {
  if (priceType == "MKT") {
    if (issue.get(kCutOff) == "N") return noCutOff(issue.id());
    return std::nullopt;
  }
  const auto floor = parseFixed(issue.get(kFloor), 2);
  const auto tick = parseFixed(issue.get(kTick), 2);
  if (floor && paise < *floor) return belowFloorPrice(fixedText(paise, 2), issue.get(kFloor));
  if (tick && *tick > 0 && paise % *tick != 0)
    return notTickMultiple(fixedText(paise, 2), issue.get(kTick));
  return std::nullopt;
}

}  // namespace

MaybeRefusal biddingRefusal(const Issue& issue, int64_t today) {
  const auto open = issueDay(issue, kOpen, today);
  const auto close = issueDay(issue, kClose, today);
  if (issue.get(kBidding) == "N" || !open || !close || today < *open || today > *close)
    return notOpenForBidding(issue.id());
  return std::nullopt;
}

MaybeRefusal bidRefusal(const Issue& issue, int64_t quantity, const std::string& priceType,
                        int64_t paise) {
  if (auto refusal = quantityRefusal(issue, quantity)) return refusal;
  return priceRefusal(issue, priceType, paise);
}

MaybeRefusal changeRefusal(const Order& order, const Issue* issue, int64_t today) {
  if (!order.isOpen()) return orderNotOpen(order.number);
  if (!issue) return unknownIssue(order.issueId);
  if (auto refusal = biddingRefusal(*issue, today)) return refusal;
  if (issue->get(kModifyCancel) == "N") return noModifyOrCancel(issue->id());
  return std::nullopt;
}

MaybeRefusal carryForwardRefusal(const Order& order, const Issue* issue, int64_t today) {
  if (auto refusal = changeRefusal(order, issue, today)) return refusal;
  const std::string series = issue->get(issue_field::kSeries);
  if (series != "IS" && series != "NonRetail")
    return noCarryForward(issue->id(), "series " + series + " bids are for one day");
  if (parseDayText(resolveDate(issue->get(kClose), today)) <= today)
    return noCarryForward(issue->id(), "bidding closes today");
  return std::nullopt;
}

}  // namespace sim
