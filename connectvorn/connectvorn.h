// libconnectvorn beyond the otp_* operations: what the host and the tests need to carry
// messages around (decode received bytes, build a message from fields, walk its fields in
// order, render it as one transcript line).
//
// Wire encoding of one message: its fields in the order they were added, each as
//   field id   unsigned LEB128 varint (1 to 5 bytes)
//   value type one byte (1 = text)
//   length     unsigned LEB128 varint
//   value      `length` raw bytes (any bytes, NULs included)
// In the scratch buffer the message follows a little-endian 32-bit word holding its length.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sdk/otp_api.h"

namespace otpx {

struct Field {
  uint32_t id;
  std::string_view value;
};

}  // namespace otpx

// A received message: owns its bytes and an index of its fields in order.
struct otp_message {
 public:
  // Decodes wire bytes; null (and *err set) when they are not a well-formed message.
  static std::unique_ptr<otp_message> decode(std::string_view bytes, int* err);
  static std::unique_ptr<otp_message> build(std::span<const otpx::Field> fields);

  size_t fieldCount() const { return index_.size(); }
  otpx::Field fieldAt(size_t i) const;
  uint32_t occurrences(uint32_t fieldId) const;
  bool find(uint32_t fieldId, uint32_t occurrence, otp_value* value) const;
  const std::string& bytes() const { return bytes_; }

 private:
  struct Entry {
    uint32_t id;
    uint32_t offset;
    uint32_t length;
    uint32_t next;  // 1 + the entry of the field's next occurrence; 0 for the last
  };
  // A reader asks for dozens of fields of one message: an open-addressing table from field id
  // to its first occurrence (1 + entry, 0 empty) makes each lookup a probe, not a scan.
  void buildLookup();
  uint32_t firstOf(uint32_t fieldId) const;

  std::string bytes_;
  std::vector<Entry> index_;
  std::vector<uint32_t> slots_;
};

namespace otpx {

// Appends one encoded field to `out`.
void encodeField(std::string& out, uint32_t id, std::string_view value);
std::string encode(std::span<const Field> fields);

// The message currently built in the handle's scratch buffer (empty when none was started).
std::string_view currentMessage(otp_handle_t handle);

// One transcript line: `verb control name id="value" ...` when field 0 leads the fields
// (its value printed bare), else `verb control id="value" ...`. Inside the quotes `"` and `\`
// are escaped with a backslash and bytes below 0x20 are written as \xHH so a line stays a line.
std::string renderLine(std::string_view verb, int control, std::span<const Field> fields);
std::string quote(std::string_view value);

}  // namespace otpx
