// The request that carries an open non-retail bid into the offer's next day of bidding.
#pragma once

#include <cstdint>
#include <string>

#include "domain/records.h"
#include "messaging/order_requests.h"

// "om_carry_forward_ofs", fields in order: 63001 the order's exchange, 31003 the user id,
// 54001 the order's account or 64916 its walk-in client, 63100 issue id, 64001 order number,
// 63058 "NonRetail", 50110 `date` ("%m/%d/%Y"), 10306 the order's price in rupees ("%.02f",
// unlike the paise of placing), 12004 quantity, 54158 a unique id with the host's service.
// 0 when sent, 1 on failure (the message layer has shown why).
int32_t carryForwardOrder(const OrderContext& context, const sOFSOrderInfo& order,
                          const std::string& date);
