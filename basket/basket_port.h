// What the basket and bulk upload screens need of the running plug-in. The control block implements
// it; tests replace it.
#pragma once

#include <string>
#include <vector>

#include "domain/prompt_port.h"
#include "domain/records.h"
#include "messaging/order_requests.h"

class BasketPort {
 public:
  // The message layer, identities and uuid service the order requests use.
  virtual OrderContext orderContext() = 0;
  virtual const std::string& userId() const = 0;
  virtual PromptPort& prompt() = 0;
  // The accounts the host's client list gives, or the user's mapped accounts without it.
  virtual std::vector<std::string> userAccounts() const = 0;
  // The account's participant code; empty when it has none or the host cannot say.
  virtual std::string participantCodeOf(const std::string& account) const = 0;
  // The issue whose symbol (symbol-series) is given; null when unknown.
  virtual const sOFSCol* issueOfSymbol(const std::string& symbol) const = 0;
  // The issue with this issue id (OFS ID); null when unknown.
  virtual const sOFSCol* issueOfId(const std::string& issueId) const = 0;
  // The user's order with this OFS order number; null when there is none.
  virtual const sOFSOrderInfo* orderOfNumber(const std::string& number) const = 0;
  // The trading member's own code; empty when the host has not given it.
  virtual std::string tmCode() const = 0;

 protected:
  ~BasketPort() = default;
};
