#include "tests/support/test_channel.h"

TestChannel::TestChannel(const OtpOps& ops)
    : controls{FakeRxControl{2, 1, &transcript}, FakeRxControl{0, 2, &transcript},
               FakeRxControl{2, 3, &transcript}, FakeRxControl{3, 4, &transcript},
               FakeRxControl{1, 5, &transcript}},
      layer(ops, prompt) {
  int err = 0;
  otp_open_scratch(&scratch, 32768, &err);
  otp_ctor_primecb(&handle, &err);
  layer.setHandles(handle, scratch);
  for (int i = 0; i < kControlCount; ++i)
    layer.setControl(static_cast<Control>(i), &controls[static_cast<size_t>(i)]);
}

TestChannel::~TestChannel() {
  int err = 0;
  otp_dtor_primecb(&handle, &err);
  otp_close_scratch(&scratch, &err, 0);
}
