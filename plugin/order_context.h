// The order requests' view of the running plug-in.
#pragma once

#include "messaging/order_requests.h"

class COFSControlBlock;

// The block's message layer, user id, identity [1], uuid service and the placed-orders map.
OrderContext orderContextOf(COFSControlBlock& block);
