// Any bytes as a received message: decoding refuses or indexes them, and every reader stays
// inside the message.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "connectvorn/connectvorn.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  int err = 0;
  auto msg = otp_message::decode(std::string_view(reinterpret_cast<const char*>(data), size), &err);
  if (!msg) return 0;
  volatile size_t total = 0;
  for (size_t i = 0; i < msg->fieldCount(); ++i) {
    const otpx::Field f = msg->fieldAt(i);
    otp_value v{};
    if (otp_get_data(msg.get(), f.id, 0, &v, &err)) total = total + v.len;
    otp_field header{};
    otp_get_field(msg.get(), f.id, &header, &err);
    otp_get_data(msg.get(), f.id, header.count, &v, &err);  // one past the last: absent
  }
  std::vector<otpx::Field> fields;
  for (size_t i = 0; i < msg->fieldCount(); ++i) fields.push_back(msg->fieldAt(i));
  auto again = otp_message::build(fields);
  if (!again || again->bytes() != msg->bytes()) __builtin_trap();  // encoding must round-trip
  return 0;
}
