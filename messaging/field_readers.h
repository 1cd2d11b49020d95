// Readers for the fields of a received message.
#pragma once

#include <cstdint>
#include <string>

#include "messaging/otp_ops.h"

// Status codes the readers set on failure.
constexpr int kReadAbsent = 7;  // the library said the field is absent
constexpr int kReadFailed = 3;  // any other failure

// Decimal text-to-long rules through a zeroed 32-byte buffer (a longer field is cut to 31
// bytes): leading blanks, optional sign, digits up to the first non-digit. The host's long is
// 32 bits, so a value past its range saturates as strtol would there. On failure `out` is left
// as it was. Returns 1 on success, 0 on failure.
int readNumber(const OtpOps& ops, otp_msg_t msg, uint32_t fieldId, uint32_t occurrence,
               int32_t& out, int& status);
// Empties `out`, then sets it to exactly the field's bytes. Returns 1 on success, 0 on failure.
int readText(const OtpOps& ops, otp_msg_t msg, uint32_t fieldId, uint32_t occurrence,
             std::string& out, int& status);

// The same conversion on text already at hand (records keep numeric copies of text fields).
int32_t textToLong(const char* data, size_t length);

// A received message with the readers bound, for code that reads many fields of one message.
class MessageView {
 public:
  MessageView(const OtpOps& ops, otp_msg_t msg) : ops_(&ops), msg_(msg) {}

  bool has(uint32_t fieldId, uint32_t occurrence = 0) const;
  uint32_t count(uint32_t fieldId) const;
  // Empty when absent.
  std::string text(uint32_t fieldId, uint32_t occurrence = 0) const;
  bool text(uint32_t fieldId, uint32_t occurrence, std::string& out) const;
  bool number(uint32_t fieldId, uint32_t occurrence, int32_t& out) const;
  otp_msg_t message() const { return msg_; }
  const OtpOps& ops() const { return *ops_; }

 private:
  const OtpOps* ops_;
  otp_msg_t msg_;
};
