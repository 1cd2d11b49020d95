// What one request brings about, in delivery order: the reply to the asker (rows, then one
// end) and the live updates to subscribers. Every message carries the request's name (32767);
// the reply's messages also carry the request's tags (every occurrence of 32760) back.
#pragma once

#include "host/sim/refusals.h"
#include "host/sim/request_fields.h"
#include "host/sim/sim_message.h"

namespace sim {

class Answers {
 public:
  Answers(const RequestFields& request, IIrbeNotifier* asker);

  void row(const SimFields& fields);
  // The end that carries 32766 = "".
  void succeed();
  // The end that carries 32766 twice: code, then text.
  void fail(const Refusal& refusal);
  void liveUpdate(IIrbeNotifier* to, const SimFields& fields);

  bool ended() const { return ended_; }
  Deliveries& deliveries() { return out_; }

 private:
  void reply(SimFields fields);

  std::string name_;
  SimFields tags_;
  IIrbeNotifier* asker_;
  Deliveries out_;
  bool ended_ = false;
};

}  // namespace sim
