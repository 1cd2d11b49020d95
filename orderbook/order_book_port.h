// What the order book, the order history and the modify-price screens need of the running
// plug-in. The control block implements it; tests replace it.
#pragma once

#include <cstdint>
#include <string>

#include "domain/prompt_port.h"
#include "domain/records.h"
#include "messaging/message_layer.h"
#include "messaging/order_requests.h"

class OrderBookPort {
 public:
  // The message layer, identities and uuid service the order requests use.
  virtual OrderContext orderContext() = 0;
  virtual MessageLayer& messageLayer() = 0;
  virtual const std::string& userId() const = 0;
  // Seconds since 1970 by the clock the plug-in reads.
  virtual int64_t now() const = 0;
  virtual PromptPort& prompt() = 0;
  // The issue an order belongs to, looked up by the order's symbol; null when unknown.
  virtual const sOFSCol* issueOfOrder(const sOFSOrderInfo& order) const = 0;

 protected:
  ~OrderBookPort() = default;
};
