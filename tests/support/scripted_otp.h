// An otp_* table that forwards to connectvorn but can be told to fail one step, and records
// the field ids it was asked to add. One instance at a time (the table holds plain functions).
#pragma once

#include <cstdint>
#include <vector>

#include "messaging/otp_ops.h"

struct ScriptedOtp {
  bool failStart = false;
  int failAddAt = -1;         // index of the otp_add_data call that fails (0 = field 0)
  int getDataError = OTP_OK;  // when set, every otp_get_data fails with this error
  std::vector<uint32_t> added;

  ScriptedOtp();
  ~ScriptedOtp();
  const OtpOps& ops() const;
};
