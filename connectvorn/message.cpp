// Received messages: decoding, lookup by field and occurrence, building, rendering.
#include <cstdio>

#include "connectvorn/connectvorn.h"
#include "connectvorn/varint.h"

std::unique_ptr<otp_message> otp_message::decode(std::string_view bytes, int* err) {
  auto msg = std::unique_ptr<otp_message>(new otp_message);
  msg->bytes_.assign(bytes);
  const auto* begin = reinterpret_cast<const unsigned char*>(msg->bytes_.data());
  const auto* end = begin + msg->bytes_.size();
  const unsigned char* p = begin;
  while (p != end) {
    uint32_t id = 0;
    uint32_t length = 0;
    bool ok = otpx::detail::getVarint(p, end, id) && p != end && *p++ == OTP_TYPE_TEXT &&
              otpx::detail::getVarint(p, end, length) && length <= static_cast<size_t>(end - p);
    if (!ok) {
      if (err) *err = OTP_E_MALFORMED;
      return nullptr;
    }
    msg->index_.push_back({id, static_cast<uint32_t>(p - begin), length});
    p += length;
  }
  if (err) *err = OTP_OK;
  return msg;
}

std::unique_ptr<otp_message> otp_message::build(std::span<const otpx::Field> fields) {
  return decode(otpx::encode(fields), nullptr);
}

otpx::Field otp_message::fieldAt(size_t i) const {
  const Entry& e = index_[i];
  return {e.id, std::string_view(bytes_).substr(e.offset, e.length)};
}

uint32_t otp_message::occurrences(uint32_t fieldId) const {
  uint32_t n = 0;
  for (const Entry& e : index_) n += e.id == fieldId;
  return n;
}

bool otp_message::find(uint32_t fieldId, uint32_t occurrence, otp_value* value) const {
  for (const Entry& e : index_) {
    if (e.id != fieldId) continue;
    if (occurrence-- == 0) {
      value->data = bytes_.data() + e.offset;
      value->len = e.length;
      return true;
    }
  }
  return false;
}

extern "C" {

int otp_get_data(otp_msg_t msg, uint32_t field_id, uint32_t occurrence, otp_value* value,
                 int* err) {
  if (!msg || !value) {
    if (err) *err = OTP_E_ARGUMENT;
    return 0;
  }
  if (!msg->find(field_id, occurrence, value)) {
    if (err) *err = OTP_E_ABSENT;
    return 0;
  }
  if (err) *err = OTP_OK;
  return 1;
}

int otp_get_field(otp_msg_t msg, uint32_t field_id, otp_field* result, int* err) {
  if (!msg || !result) {
    if (err) *err = OTP_E_ARGUMENT;
    return 0;
  }
  result->count = msg->occurrences(field_id);
  result->first = {nullptr, 0};
  if (result->count == 0) {
    if (err) *err = OTP_E_ABSENT;
    return 0;
  }
  msg->find(field_id, 0, &result->first);
  if (err) *err = OTP_OK;
  return 1;
}

}  // extern "C"

namespace otpx {

void encodeField(std::string& out, uint32_t id, std::string_view value) {
  char head[11];
  char* p = detail::putVarint(head, id);
  *p++ = static_cast<char>(OTP_TYPE_TEXT);
  p = detail::putVarint(p, static_cast<uint32_t>(value.size()));
  out.append(head, p);
  out.append(value);
}

std::string encode(std::span<const Field> fields) {
  std::string out;
  for (const Field& f : fields) encodeField(out, f.id, f.value);
  return out;
}

std::string quote(std::string_view value) {
  std::string out;
  out.reserve(value.size() + 2);
  out += '"';
  for (char c : value) {
    if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else if (static_cast<unsigned char>(c) < 0x20) {
      char hex[5];
      std::snprintf(hex, sizeof hex, "\\x%02X", static_cast<unsigned char>(c));
      out += hex;
    } else {
      out += c;
    }
  }
  out += '"';
  return out;
}

std::string renderLine(std::string_view verb, int control, std::span<const Field> fields) {
  std::string line(verb);
  line += ' ';
  line += std::to_string(control);
  size_t i = 0;
  if (!fields.empty() && fields[0].id == 0) {
    line += ' ';
    line += fields[0].value;
    i = 1;
  }
  for (; i < fields.size(); ++i) {
    line += ' ';
    line += std::to_string(fields[i].id);
    line += '=';
    line += quote(fields[i].value);
  }
  return line;
}

}  // namespace otpx
