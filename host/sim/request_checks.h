// Whether a request is well formed: required fields present and not empty, numbers that are
// numbers, exchange keys that exist. A malformed request gets an error end and nothing else.
#pragma once

#include <initializer_list>

#include "host/sim/refusals.h"
#include "host/sim/request_fields.h"

namespace sim {

// The first of `ids` that the request lacks or sends empty.
MaybeRefusal requireFields(const RequestFields& request, std::initializer_list<uint32_t> ids);
// 63001 is "nse_ipo" or "bse_ipo".
MaybeRefusal requireIpoExchange(const RequestFields& request);
// The field is a whole number above zero.
MaybeRefusal requireCount(const RequestFields& request, uint32_t id);
// 10306 is a price in paise unless 12008 says "MKT".
MaybeRefusal requirePrice(const RequestFields& request);
// The first refusal of several checks, in order.
MaybeRefusal firstOf(std::initializer_list<MaybeRefusal> checks);

}  // namespace sim
