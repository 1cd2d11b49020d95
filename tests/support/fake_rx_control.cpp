#include "tests/support/fake_rx_control.h"

#include "connectvorn/connectvorn.h"

int FakeRxControl::Send(int* result, otp_handle_t handle, int, int* err) {
  if (failSends_) {
    if (err) *err = OTP_E_ARGUMENT;
    return 0;
  }
  auto msg = otp_message::decode(otpx::currentMessage(handle), err);
  if (!msg) return 0;
  std::vector<otpx::Field> fields;
  for (size_t i = 0; i < msg->fieldCount(); ++i) fields.push_back(msg->fieldAt(i));
  record(otpx::renderLine("send", number_, fields));
  if (result) *result = 1;
  return 1;
}

int FakeRxControl::Subscribe(int* result, const uint32_t* keys, const otp_value* values, int count,
                             int, int, int, int, int*) {
  std::vector<otpx::Field> fields;
  for (int i = 0; i < count; ++i)
    fields.push_back({keys[i], std::string_view(values[i].data, values[i].len)});
  record(otpx::renderLine("subscribe", number_, fields));
  if (result) *result = 1;
  return 1;
}

void FakeRxControl::record(std::string line) {
  if (sink_) sink_->push_back(line);
  lines_.push_back(std::move(line));
}
