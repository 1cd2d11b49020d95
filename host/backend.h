// The back end behind the terminal's receive controls: what answers the plug-in's requests.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "connectvorn/connectvorn.h"
#include "sdk/rx_control.h"

using KeyValues = std::vector<std::pair<uint32_t, std::string>>;

class Backend {
 public:
  virtual ~Backend() = default;
  // A request sent through receive control `control` (1 to 5); answers go to `notifier`, later,
  // on the UI thread.
  virtual void request(int control, const otp_message& msg, IIrbeNotifier* notifier) = 0;
  // A subscription registered on `control`; called on the UI thread.
  virtual void subscribe(int control, const KeyValues& keys, IIrbeNotifier* notifier) = 0;
};

// Answers nothing: the script says what the back end says.
class SilentBackend : public Backend {
 public:
  void request(int, const otp_message&, IIrbeNotifier*) override {}
  void subscribe(int, const KeyValues&, IIrbeNotifier*) override {}
};
