// A small exchange at a fixed clock, a way to send it requests, and compact views of what it
// answers.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "host/sim/sim_exchange.h"
#include "tests/support/field_text.h"

namespace simtest {

using Lines = std::vector<std::string>;
using FieldList = std::vector<std::pair<uint32_t, std::string>>;

struct NullNotifier : IIrbeNotifier {
  void OnLiveUpdate(otp_msg_t) override {}
  void OnResponse(otp_msg_t) override {}
};

// 21/11/2026 10:15:00, local time.
int64_t fixedClock();

// Issues (dates relative to the fixed clock's day):
//   N1 nse ABC-RS  open -1..+1, floor 100.00, tick 0.05, min 10, lot 5, cut-off Y
//   N2 nse ABC-IS  open, cut-off N
//   N3 nse OLD-RS  past          N4 nse NEW-RS forthcoming     N5 nse HLD-IS bidding N
//   B1 bse XYZ-Retail open      B2 bse XYZ-NonRetail open, modify/cancel N
// Accounts A1 (PC1), A2; the terminal also knows T1 (TPC). Asset nse_cm ABC 245.30.
// Orders: 501 A2 on N1 open; 502 A1 on N1 pro (F) open; 503 walk-in W1 on N1 open;
// 504 A2 on N1 cancelled; 505 A2 on B1 open; 506 user U2 on N1 open; 507 A2 on B2 open.
extern const char* const kFixtureData;

class SimFixture {
 public:
  SimFixture();
  explicit SimFixture(const std::string& data);

  // Sends `name` with the fields from the asker.
  sim::Deliveries ask(const std::string& name, const FieldList& fields);
  // The live updates go to `listener` for nse_ipo and `bseListener` for bse_ipo.
  void subscribeListeners();

  sim::SimExchange exchange;
  NullNotifier asker;
  NullNotifier listener;
  NullNotifier bseListener;
};

// `fields` with `changes` ("12004=5 10306=") over them; an id not there is added.
FieldList changed(FieldList fields, const std::string& changes);
// A placement of 10 @ 101.50 on N1 for A2 by U1, with `changes` over it.
FieldList placement(const std::string& changes);

// One line a message: "reply" or "live", who gets it (asker, listener, bse), the name, then
// `id=value` for each wanted field present, every occurrence.
Lines describe(const SimFixture& f, const sim::Deliveries& out, const std::vector<uint32_t>& ids);
// Every occurrence of the field in the message, in order.
std::vector<std::string> values(const sim::Delivery& d, uint32_t id);
std::string value(const sim::Delivery& d, uint32_t id);

}  // namespace simtest
