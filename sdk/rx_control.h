// Receive controls and the notifier: how requests leave the plug-in and answers come back.
#pragma once

#include <cstdint>

#include "sdk/otp_api.h"

// Implemented by the plug-in's control block; the host calls it on its UI thread.
// The order of the two entry points is part of the contract.
class IIrbeNotifier {
 public:
  // Unsolicited messages: order broadcasts, market depth, prices.
  virtual void OnLiveUpdate(otp_msg_t msg) = 0;
  // Rows and end messages of replies to the plug-in's own requests.
  virtual void OnResponse(otp_msg_t msg) = 0;

 protected:
  ~IIrbeNotifier() = default;
};

// Handed out by the host's GetIrbeRxControl, given back through DestoryIrbeRxCOntrol.
class IIrbeRxControl {
 public:
  virtual ~IIrbeRxControl() = default;
  // Kind number the control was obtained with (0 to 3).
  virtual int Kind() const = 0;
  // Sends the message built in the handle's scratch buffer. Non-zero on success.
  virtual int Send(int* result, otp_handle_t handle, int reserved, int* err) = 0;
  // Registers interest in broadcasts matching every key. Called from the subscription worker
  // thread too, so it never touches the scratch buffer.
  virtual int Subscribe(int* result, const uint32_t* keys, const otp_value* values, int count,
                        int reserved1, int reserved2, int reserved3, int one, int* err) = 0;
};
