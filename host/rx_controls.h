// The terminal's receive controls: they put requests on the transcript and hand them to the
// back end.
#pragma once

#include <memory>
#include <vector>

#include "host/backend.h"
#include "sdk/rx_control.h"

class HostRxControl : public IIrbeRxControl {
 public:
  HostRxControl(int kind, int number, IIrbeNotifier* notifier)
      : kind_(kind), number_(number), notifier_(notifier) {}

  int Kind() const override { return kind_; }
  int Send(int* result, otp_handle_t handle, int reserved, int* err) override;
  int Subscribe(int* result, const uint32_t* keys, const otp_value* values, int count, int, int,
                int, int one, int* err) override;

  int number() const { return number_; }
  void setNumber(int number) { number_ = number; }
  IIrbeNotifier* notifier() const { return notifier_; }

 private:
  int kind_;
  int number_;
  IIrbeNotifier* notifier_;
};

class RxControls {
 public:
  HostRxControl* create(int kind, IIrbeNotifier* notifier);
  void destroy(IIrbeRxControl* control);
  // The notifier of the plug-in's controls (they all share one); null when none exist.
  IIrbeNotifier* notifier() const;
  void setBackend(Backend* backend) { backend_ = backend; }
  Backend* backend() const { return backend_; }

 private:
  std::vector<std::unique_ptr<HostRxControl>> controls_;
  Backend* backend_ = nullptr;
};

RxControls& rxControls();
