#include "plugin/order_context.h"

#include "plugin/control_block.h"

OrderContext orderContextOf(COFSControlBlock& block) {
  return OrderContext{block.layer, block.userId(), block.identities[1], block.services.getUuid,
                      &placedOrderRecords()};
}
