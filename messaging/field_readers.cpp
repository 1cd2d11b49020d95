#include "messaging/field_readers.h"

#include <cctype>
#include <climits>
#include <cstring>

namespace {

int failureStatus(int err) {
  return err == OTP_E_ABSENT ? kReadAbsent : kReadFailed;
}

}  // namespace

int32_t textToLong(const char* data, size_t length) {
  char buffer[32] = {};
  std::memcpy(buffer, data, length < sizeof buffer ? length : sizeof buffer - 1);
  const char* p = buffer;
  while (std::isspace(static_cast<unsigned char>(*p))) ++p;
  bool negative = false;
  if (*p == '+' || *p == '-') negative = *p++ == '-';
  int64_t magnitude = 0;
  const int64_t limit = negative ? -int64_t{INT32_MIN} : int64_t{INT32_MAX};
  for (; std::isdigit(static_cast<unsigned char>(*p)); ++p) {
    magnitude = magnitude * 10 + (*p - '0');
    if (magnitude > limit) {
      magnitude = limit;
      break;
    }
  }
  return static_cast<int32_t>(negative ? -magnitude : magnitude);
}

int readNumber(const OtpOps& ops, otp_msg_t msg, uint32_t fieldId, uint32_t occurrence,
               int32_t& out, int& status) {
  otp_value value{nullptr, 0};
  int err = 0;
  if (!ops.getData(msg, fieldId, occurrence, &value, &err)) {
    status = failureStatus(err);
    return 0;
  }
  out = textToLong(value.data, value.len);
  return 1;
}

int readText(const OtpOps& ops, otp_msg_t msg, uint32_t fieldId, uint32_t occurrence,
             std::string& out, int& status) {
  out.clear();
  otp_value value{nullptr, 0};
  int err = 0;
  if (!ops.getData(msg, fieldId, occurrence, &value, &err)) {
    status = failureStatus(err);
    return 0;
  }
  out.assign(value.data, value.len);
  return 1;
}

bool MessageView::has(uint32_t fieldId, uint32_t occurrence) const {
  otp_value value{nullptr, 0};
  int err = 0;
  return ops_->getData(msg_, fieldId, occurrence, &value, &err) != 0;
}

uint32_t MessageView::count(uint32_t fieldId) const {
  otp_field field{0, {nullptr, 0}};
  int err = 0;
  ops_->getField(msg_, fieldId, &field, &err);
  return field.count;
}

std::string MessageView::text(uint32_t fieldId, uint32_t occurrence) const {
  std::string out;
  text(fieldId, occurrence, out);
  return out;
}

bool MessageView::text(uint32_t fieldId, uint32_t occurrence, std::string& out) const {
  int status = 0;
  return readText(*ops_, msg_, fieldId, occurrence, out, status) != 0;
}

bool MessageView::number(uint32_t fieldId, uint32_t occurrence, int32_t& out) const {
  int status = 0;
  return readNumber(*ops_, msg_, fieldId, occurrence, out, status) != 0;
}
