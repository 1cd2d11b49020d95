// The one sending procedure every builder uses, and the subscribe path.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "domain/prompt_port.h"
#include "messaging/otp_ops.h"
#include "messaging/request.h"
#include "sdk/rx_control.h"

class MessageLayer {
 public:
  MessageLayer(const OtpOps& ops, PromptPort& prompt) : ops_(&ops), prompt_(&prompt) {}

  void setHandles(otp_handle_t handle, otp_scratch_t scratch) {
    handle_ = handle;
    scratch_ = scratch;
  }
  void setControl(Control which, IIrbeRxControl* control) {
    controls_[static_cast<int>(which)] = control;
  }
  IIrbeRxControl* control(Control which) const { return controls_[static_cast<int>(which)]; }
  void setPrompt(PromptPort& prompt) { prompt_ = &prompt; }
  const OtpOps& ops() const { return *ops_; }

  // Query and admin builders: 1 whatever happened (a failure shows only as its message box).
  int32_t send(const Request& request) {
    transmit(request);
    return 1;
  }
  // Order-placing builders: 0 when sent, 1 when it failed.
  int32_t sendOrder(const Request& request) { return transmit(request) ? 0 : 1; }

  // Registers interest in broadcasts matching every key. Builds no message, so the
  // subscription worker may call it off the UI thread.
  void subscribe(Control which, std::span<const uint32_t> keys,
                 std::span<const std::string> values) const;

  // Runs the sending procedure; false after the failure message was shown.
  bool transmit(const Request& request);

 private:
  bool fail(const Request& request, std::string_view step);

  const OtpOps* ops_;
  PromptPort* prompt_;
  otp_handle_t handle_ = nullptr;
  otp_scratch_t scratch_ = nullptr;
  std::array<IIrbeRxControl*, kControlCount> controls_{};
};
