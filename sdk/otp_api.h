// The host's messaging library as the plug-in sees it: a scratch buffer, a messaging handle,
// and readers for received messages. Implemented by libconnectvorn.so.
//
// Every operation returns non-zero on success and writes an error number (OtpError) through
// its error pointer. The plug-in builds one request at a time into the one scratch buffer.
#pragma once

#include <cstdint>

extern "C" {

// Errors written through the error pointers.
enum OtpError : int {
  OTP_OK = 0,
  OTP_E_ARGUMENT = 1,     // a null handle or pointer
  OTP_E_NO_MEMORY = 2,    // allocation failed
  OTP_E_BUFFER_FULL = 3,  // the field does not fit in the scratch buffer; nothing was written
  OTP_E_NOT_STARTED = 4,  // otp_add_data before otp_start_msg
  OTP_E_MALFORMED = 5,    // received bytes are not a well-formed message
  OTP_E_ABSENT = 6,       // the field (or that occurrence of it) is not in the message
  OTP_E_BAD_TYPE = 7,     // a value type other than 1 (text)
};

enum : int { OTP_TYPE_TEXT = 1 };

// A field value: bytes and their count, no terminator required.
struct otp_value {
  const char* data;
  uint32_t len;
};

// What otp_get_field reports of one field: how often it occurs and its first occurrence.
struct otp_field {
  uint32_t count;
  otp_value first;
};

// The scratch handle points at the buffer itself: its first unsigned 32-bit word is the
// number of message bytes that follow it, so writing 0 there empties the buffer.
typedef void* otp_scratch_t;
typedef struct otp_primecb* otp_handle_t;
typedef const struct otp_message* otp_msg_t;

int otp_open_scratch(otp_scratch_t* scratch, uint32_t capacity, int* err);
int otp_close_scratch(otp_scratch_t* scratch, int* err, int reserved);
int otp_ctor_primecb(otp_handle_t* handle, int* err);
int otp_dtor_primecb(otp_handle_t* handle, int* err);

// Binds the handle to the scratch buffer and starts a new message at the buffer's write
// position (the word at its start).
int otp_start_msg(otp_handle_t handle, otp_scratch_t scratch, int* err);
// Appends one field. A field that would outgrow the buffer fails with OTP_E_BUFFER_FULL and
// leaves the buffer as it was.
int otp_add_data(otp_handle_t handle, uint32_t field_id, int value_type, const otp_value* value,
                 int* err);

// Occurrence `occurrence` (0 for the first) of a field of a received message. The value points
// into the message and lives as long as the message does.
int otp_get_data(otp_msg_t msg, uint32_t field_id, uint32_t occurrence, otp_value* value, int* err);
// A header field (32766, 32760, ...): its occurrence count and first value.
int otp_get_field(otp_msg_t msg, uint32_t field_id, otp_field* result, int* err);

}  // extern "C"
