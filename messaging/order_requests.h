// The requests that place, modify and cancel bids, for the user's own accounts ("ofs") and for
// walk-in clients. Each exists for the screens and for the bulk upload. Place builders return 0
// when sent and 1 on failure; cancel and modify builders return 1 whatever happened.
#pragma once

#include <cstdint>
#include <string>

#include "domain/place_order.h"
#include "domain/records.h"
#include "messaging/message_layer.h"
#include "sdk/host_services.h"

// What the builders need of the running plug-in.
struct OrderContext {
  MessageLayer& layer;
  std::string userId;                // identity [0]
  std::string defaultPCode;          // identity [1]: a walk-in bid's PCode when none was typed
  pu_get_uuid_fn getUuid = nullptr;  // null: no unique id is sent
  PlacedOrderMap* placedOrders = nullptr;  // where a placed ofs order is remembered
};

// Each place builder writes the Pro/Cli letter and an absent side ("B") back into `order`.
int32_t placeOfsOrder(const OrderContext& context, sOFSPlaceOrder& order);
int32_t placeWalkinOrder(const OrderContext& context, sOFSPlaceOrder& order);
// Bulk rows carry their price apart from the record.
int32_t placeOfsOrderBulk(const OrderContext& context, sOFSPlaceOrder& order,
                          const std::string& price);
int32_t placeWalkinOrderBulk(const OrderContext& context, sOFSPlaceOrder& order,
                             const std::string& price);

int32_t cancelOfsOrder(const OrderContext& context, const sOFSOrderInfo& order);
int32_t cancelWalkinOrder(const OrderContext& context, const sOFSOrderInfo& order);
// A bulk row names the order by `orderNumber`; a walk-in row also gives the user id.
int32_t cancelOfsOrderBulk(const OrderContext& context, const sOFSPlaceOrder& row);
int32_t cancelWalkinOrderBulk(const OrderContext& context, const sOFSPlaceOrder& row);

// `price` in rupees; `pCode` replaces the order's participant code of a walk-in order. The
// result is 1 either way; `sent`, when given, tells the screen whether to reset.
int32_t modifyOfsOrder(const OrderContext& context, const sOFSOrderInfo& order,
                       const std::string& price, const std::string& quantity, bool* sent = nullptr);
int32_t modifyWalkinOrder(const OrderContext& context, const sOFSOrderInfo& order,
                          const std::string& price, const std::string& quantity,
                          const std::string& pCode, bool* sent = nullptr);
// A bulk row gives the new price and quantity (and, for a walk-in order, the PCode).
int32_t modifyOfsOrderBulk(const OrderContext& context, const sOFSOrderInfo& order,
                           const sOFSPlaceOrder& row);
int32_t modifyWalkinOrderBulk(const OrderContext& context, const sOFSOrderInfo& order,
                              const sOFSPlaceOrder& row);
