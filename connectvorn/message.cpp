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
    msg->index_.push_back({id, static_cast<uint32_t>(p - begin), length, 0});
    p += length;
  }
  msg->buildLookup();
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

namespace {

size_t slotOf(uint32_t fieldId, size_t mask) {
  return static_cast<size_t>((fieldId * 2654435761u) >> 7) & mask;
}

}  // namespace

void otp_message::buildLookup() {
  size_t size = 16;
  while (size < 2 * index_.size()) size *= 2;
  slots_.assign(size, 0);
  const size_t mask = size - 1;
  // From the last field to the first, so that each chain runs in message order.
  for (size_t i = index_.size(); i-- > 0;) {
    size_t slot = slotOf(index_[i].id, mask);
    while (slots_[slot] != 0 && index_[slots_[slot] - 1].id != index_[i].id)
      slot = (slot + 1) & mask;
    index_[i].next = slots_[slot];
    slots_[slot] = static_cast<uint32_t>(i + 1);
  }
}

uint32_t otp_message::firstOf(uint32_t fieldId) const {
  const size_t mask = slots_.size() - 1;
  for (size_t slot = slotOf(fieldId, mask);; slot = (slot + 1) & mask) {
    const uint32_t entry = slots_[slot];
    if (entry == 0 || index_[entry - 1].id == fieldId) return entry;
  }
}

uint32_t otp_message::occurrences(uint32_t fieldId) const {
  uint32_t n = 0;
  for (uint32_t e = firstOf(fieldId); e != 0; e = index_[e - 1].next) ++n;
  return n;
}

bool otp_message::find(uint32_t fieldId, uint32_t occurrence, otp_value* value) const {
  uint32_t e = firstOf(fieldId);
  while (e != 0 && occurrence-- > 0) e = index_[e - 1].next;
  if (e == 0) return false;
  value->data = bytes_.data() + index_[e - 1].offset;
  value->len = index_[e - 1].length;
  return true;
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
