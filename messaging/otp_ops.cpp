#include "messaging/otp_ops.h"

const OtpOps& connectvornOps() {
  static const OtpOps ops{otp_start_msg, otp_add_data, otp_get_data, otp_get_field};
  return ops;
}
