// The otp_* operations the message layer calls, as a table so that tests can make any step
// fail. Production code uses connectvornOps().
#pragma once

#include "sdk/otp_api.h"

struct OtpOps {
  int (*startMsg)(otp_handle_t, otp_scratch_t, int*);
  int (*addData)(otp_handle_t, uint32_t, int, const otp_value*, int*);
  int (*getData)(otp_msg_t, uint32_t, uint32_t, otp_value*, int*);
  int (*getField)(otp_msg_t, uint32_t, otp_field*, int*);
};

const OtpOps& connectvornOps();
