// What the order-entry screen needs of the running plug-in. The control block implements it;
// tests may replace it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "domain/record_maps.h"
#include "messaging/order_requests.h"

class OrderEntryPort {
 public:
  // The message layer, identities, uuid service and placed-orders map the order requests use.
  virtual OrderContext orderContext() = 0;
  // Seconds since 1970 by the clock the plug-in reads.
  virtual int64_t now() const = 0;
  virtual const std::string& userId() const = 0;
  // The host's account check; without it every account passes.
  virtual bool isValidAccount(const std::string& account) const = 0;
  // The accounts the host's client list gives, or the user's mapped accounts without it.
  virtual std::vector<std::string> userAccounts() const = 0;
  // The host's own client types ("CLI", "PRO", ...); empty when the host gives none.
  virtual std::vector<std::string> hostClientTypes() const = 0;
  // Tells the host's client search which client type is chosen.
  virtual void clientTypeChosen(const std::string& type) = 0;
  // The account's participant code; empty when it has none or the host cannot say.
  virtual std::string participantCodeOf(const std::string& account) const = 0;
  // The client categories the exchange gave for an issue category; null when it gave none.
  virtual const std::vector<std::string>* clientCategoriesOf(const std::string& category) const = 0;

 protected:
  ~OrderEntryPort() = default;
};
