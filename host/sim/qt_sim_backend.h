// The simulated exchange behind the terminal's receive controls: it hands each request to the
// exchange and delivers the answers later, on the UI thread, in order.
#pragma once

#include <QObject>
#include <memory>
#include <string>

#include "host/backend.h"
#include "host/sim/sim_exchange.h"

class QtSimBackend : public Backend {
 public:
  explicit QtSimBackend(sim::ExchangeData data);

  void request(int control, const otp_message& msg, IIrbeNotifier* notifier) override;
  void subscribe(int control, const KeyValues& keys, IIrbeNotifier* notifier) override;

 private:
  void deliver(sim::Deliveries deliveries);

  sim::SimExchange exchange_;
  QObject context_;  // answers still queued when the back end goes are dropped with it
};

// The data file is $VORN_SIM_EXCHANGE, else host/sim/exchange.txt of the source tree. Null,
// with `error` set, when it cannot be read.
std::unique_ptr<Backend> makeQtSimBackend(std::string& error);
