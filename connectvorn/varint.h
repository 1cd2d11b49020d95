#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace otpx::detail {

inline size_t varintSize(uint32_t v) {
  size_t n = 1;
  while (v >= 0x80) {
    v >>= 7;
    ++n;
  }
  return n;
}

inline char* putVarint(char* p, uint32_t v) {
  while (v >= 0x80) {
    *p++ = static_cast<char>((v & 0x7F) | 0x80);
    v >>= 7;
  }
  *p++ = static_cast<char>(v);
  return p;
}

// Reads a varint of at most 5 bytes that fits in 32 bits; false when truncated, too long or
// not in its shortest form, so that every message has exactly one encoding.
inline bool getVarint(const unsigned char*& p, const unsigned char* end, uint32_t& out) {
  uint64_t v = 0;
  for (int shift = 0; shift < 35; shift += 7) {
    if (p == end) return false;
    unsigned char b = *p++;
    v |= static_cast<uint64_t>(b & 0x7F) << shift;
    if ((b & 0x80) == 0) {
      if (v > UINT32_MAX || (b == 0 && shift > 0)) return false;
      out = static_cast<uint32_t>(v);
      return true;
    }
  }
  return false;
}

}  // namespace otpx::detail
