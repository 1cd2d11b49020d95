// The scratch buffer and the messaging handle: building one request at a time.
#include <cstdlib>
#include <cstring>
#include <new>

#include "connectvorn/connectvorn.h"
#include "connectvorn/varint.h"

namespace {

constexpr uint32_t kScratchMagic = 0x5343524Eu;  // "SCRN"
constexpr uint32_t kHandleMagic = 0x50524D43u;   // "PRMC"
constexpr uint32_t kWordSize = sizeof(uint32_t);

// Lives just before the bytes the scratch handle points at, so that the handle's first word
// is the message length the plug-in clears.
struct ScratchHeader {
  uint32_t magic;
  uint32_t capacity;  // bytes from the handle on, the length word included
};

ScratchHeader* headerOf(otp_scratch_t scratch) {
  auto* header =
      reinterpret_cast<ScratchHeader*>(static_cast<char*>(scratch) - sizeof(ScratchHeader));
  return header->magic == kScratchMagic ? header : nullptr;
}

uint32_t usedOf(otp_scratch_t scratch) {
  uint32_t used;
  std::memcpy(&used, scratch, kWordSize);
  return used;
}

void setUsed(otp_scratch_t scratch, uint32_t used) {
  std::memcpy(scratch, &used, kWordSize);
}

bool fail(int* err, int code) {
  if (err) *err = code;
  return false;
}

}  // namespace

struct otp_primecb {
  uint32_t magic = kHandleMagic;
  otp_scratch_t scratch = nullptr;  // bound by otp_start_msg
  uint32_t messageStart = 0;        // the length word's value when the message was started
};

extern "C" {

int otp_open_scratch(otp_scratch_t* scratch, uint32_t capacity, int* err) {
  if (!scratch || capacity < kWordSize) return fail(err, OTP_E_ARGUMENT);
  void* block = std::malloc(sizeof(ScratchHeader) + capacity);
  if (!block) return fail(err, OTP_E_NO_MEMORY);
  auto* header = static_cast<ScratchHeader*>(block);
  header->magic = kScratchMagic;
  header->capacity = capacity;
  *scratch = static_cast<char*>(block) + sizeof(ScratchHeader);
  setUsed(*scratch, 0);
  if (err) *err = OTP_OK;
  return 1;
}

int otp_close_scratch(otp_scratch_t* scratch, int* err, int /*reserved*/) {
  if (!scratch || !*scratch) return fail(err, OTP_E_ARGUMENT);
  ScratchHeader* header = headerOf(*scratch);
  if (!header) return fail(err, OTP_E_ARGUMENT);
  header->magic = 0;
  std::free(header);
  *scratch = nullptr;
  if (err) *err = OTP_OK;
  return 1;
}

int otp_ctor_primecb(otp_handle_t* handle, int* err) {
  if (!handle) return fail(err, OTP_E_ARGUMENT);
  *handle = new (std::nothrow) otp_primecb;
  if (!*handle) return fail(err, OTP_E_NO_MEMORY);
  if (err) *err = OTP_OK;
  return 1;
}

int otp_dtor_primecb(otp_handle_t* handle, int* err) {
  if (!handle || !*handle || (*handle)->magic != kHandleMagic) return fail(err, OTP_E_ARGUMENT);
  (*handle)->magic = 0;
  delete *handle;
  *handle = nullptr;
  if (err) *err = OTP_OK;
  return 1;
}

int otp_start_msg(otp_handle_t handle, otp_scratch_t scratch, int* err) {
  if (!handle || handle->magic != kHandleMagic || !scratch || !headerOf(scratch))
    return fail(err, OTP_E_ARGUMENT);
  handle->scratch = scratch;
  handle->messageStart = usedOf(scratch);
  if (err) *err = OTP_OK;
  return 1;
}

int otp_add_data(otp_handle_t handle, uint32_t field_id, int value_type, const otp_value* value,
                 int* err) {
  if (!handle || handle->magic != kHandleMagic || !value || (!value->data && value->len))
    return fail(err, OTP_E_ARGUMENT);
  if (!handle->scratch) return fail(err, OTP_E_NOT_STARTED);
  if (value_type != OTP_TYPE_TEXT) return fail(err, OTP_E_BAD_TYPE);
  ScratchHeader* header = headerOf(handle->scratch);
  if (!header) return fail(err, OTP_E_ARGUMENT);

  using otpx::detail::varintSize;
  const uint64_t need = varintSize(field_id) + 1 + varintSize(value->len) + uint64_t{value->len};
  const uint32_t used = usedOf(handle->scratch);
  if (kWordSize + uint64_t{used} + need > header->capacity) return fail(err, OTP_E_BUFFER_FULL);

  char* p = static_cast<char*>(handle->scratch) + kWordSize + used;
  p = otpx::detail::putVarint(p, field_id);
  *p++ = static_cast<char>(OTP_TYPE_TEXT);
  p = otpx::detail::putVarint(p, value->len);
  if (value->len) std::memcpy(p, value->data, value->len);
  setUsed(handle->scratch, used + static_cast<uint32_t>(need));
  if (err) *err = OTP_OK;
  return 1;
}

}  // extern "C"

namespace otpx {

std::string_view currentMessage(otp_handle_t handle) {
  if (!handle || handle->magic != kHandleMagic || !handle->scratch) return {};
  const uint32_t used = usedOf(handle->scratch);
  if (handle->messageStart > used) return {};
  const char* base = static_cast<const char*>(handle->scratch) + kWordSize;
  return {base + handle->messageStart, used - handle->messageStart};
}

}  // namespace otpx
