// The control block's two entry points for what the host delivers.
#pragma once

#include "messaging/dispatch_context.h"

// An unsolicited update: an order update when 64001 is present, then market depth and the
// asset price when 63001 and 10100 are.
void dispatchLiveUpdate(DispatchContext& context, otp_msg_t message);
// A reply to one of our requests: the end of a reply when 32766 is present, else one row,
// handled by its message name.
void dispatchResponse(DispatchContext& context, otp_msg_t message);
