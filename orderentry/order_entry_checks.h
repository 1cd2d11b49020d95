// The two submit sequences of the order-entry screen. Each runs its checks in order and stops
// at the first refusal; on success it has filled what is to be sent.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "domain/place_order.h"
#include "domain/records.h"
#include "orderentry/order_entry_fields.h"

struct Refusal {
  std::string message;
  std::string focus;  // label of the field to focus; empty: none
};
using Verdict = std::optional<Refusal>;  // empty: passed

// What a submission reads beyond the screen's fields.
struct SubmitContext {
  const sOFSCol& issue;
  int64_t now = 0;  // seconds since 1970
  std::string userId;
  std::function<bool(const std::string&)> isKnownClient;
};

// A new bid; on success `bid` is ready for the place request of its client type.
Verdict checkNewBid(const OrderEntryFields& fields, const SubmitContext& context,
                    sOFSPlaceOrder& bid);

// A modification of `order` (a copy of the reported order, changed as the request needs it).
struct Modification {
  sOFSOrderInfo order;
  std::string price;  // rupees
  std::string quantity;
  bool cutOff = false;
};
Verdict checkModification(const OrderEntryFields& fields, const SubmitContext& context,
                          Modification& change);
