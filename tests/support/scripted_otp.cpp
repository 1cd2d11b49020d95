#include "tests/support/scripted_otp.h"

namespace {

ScriptedOtp* current = nullptr;

int start(otp_handle_t h, otp_scratch_t s, int* err) {
  if (current->failStart) {
    *err = OTP_E_ARGUMENT;
    return 0;
  }
  return otp_start_msg(h, s, err);
}

int add(otp_handle_t h, uint32_t id, int type, const otp_value* v, int* err) {
  const int index = static_cast<int>(current->added.size());
  current->added.push_back(id);
  if (index == current->failAddAt) {
    *err = OTP_E_BUFFER_FULL;
    return 0;
  }
  return otp_add_data(h, id, type, v, err);
}

int getData(otp_msg_t m, uint32_t id, uint32_t occ, otp_value* v, int* err) {
  if (current->getDataError != OTP_OK) {
    *err = current->getDataError;
    return 0;
  }
  return otp_get_data(m, id, occ, v, err);
}

const OtpOps kScripted{start, add, getData, otp_get_field};

}  // namespace

ScriptedOtp::ScriptedOtp() {
  current = this;
}
ScriptedOtp::~ScriptedOtp() {
  current = nullptr;
}
const OtpOps& ScriptedOtp::ops() const {
  return kScripted;
}
