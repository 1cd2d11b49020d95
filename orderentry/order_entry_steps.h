// Steps that both submit sequences of the order-entry screen take.
#pragma once

#include <string>

#include "orderentry/order_entry_checks.h"

inline Verdict refusal(std::string message, std::string focus = {}) {
  return Refusal{std::move(message), std::move(focus)};
}

// The closing time, then the BSE client category.
Verdict checkOpenForBids(const OrderEntryFields& fields, const SubmitContext& context);
Verdict checkMinimumQuantity(const std::string& quantity, const sOFSCol& issue);
Verdict checkLot(const std::string& quantity, const sOFSCol& issue);
Verdict checkIssueSize(const std::string& quantity, const sOFSCol& issue);
// A priced entry above a ceiling above 0.
Verdict checkCeiling(const std::string& price, const std::string& ceiling);
// The amount limits of the series; a cut-off bid is valued at the ceiling.
Verdict checkAmount(const std::string& series, const std::string& price, bool cutOff,
                    const std::string& quantity, const std::string& ceiling, const sOFSCol& issue);
Verdict checkNineDigits(const std::string& quantity);
