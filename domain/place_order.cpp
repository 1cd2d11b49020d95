#include "domain/place_order.h"

PlacedOrderMap& placedOrderRecords() {
  static PlacedOrderMap placed;
  return placed;
}
