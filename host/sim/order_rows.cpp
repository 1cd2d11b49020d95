#include "host/sim/order_rows.h"

namespace sim {

namespace {

void addIf(SimFields& row, uint32_t id, const std::string& value) {
  if (!value.empty()) row.emplace_back(id, value);
}

// The client field: 54001 for an account, 64916 for a walk-in client.
std::pair<uint32_t, std::string> client(const Order& order) {
  return order.isWalkin() ? std::pair{64916u, order.walkin} : std::pair{54001u, order.account};
}

}  // namespace

SimFields orderRow(const Order& order) {
  SimFields row{{64001, order.number},   {63001, order.exchange},  {31003, order.user},
                client(order),           {63100, order.issueId},   {10100, order.symbol},
                {12004, order.quantity}, {12008, order.priceType}, {10306, order.price},
                {12003, order.side},     {54056, order.proCli},    {64170, order.margin},
                {10332, order.pCode}};
  addIf(row, 13034, order.bsePCode);
  if (order.exchange == "bse_ipo")
    row.emplace_back(64739, order.bsePCode.empty() ? order.pCode : order.bsePCode);
  addIf(row, 63058, order.category);
  row.emplace_back(12005, "OFS");
  if (!order.isWalkin()) row.emplace_back(64030, "CNC");
  addIf(row, 54158, order.guiNumber);
  addIf(row, 49238, order.exchangeNumber);
  addIf(row, 10308, order.allottedQuantity);
  addIf(row, 10307, order.allottedPrice);
  row.emplace_back(10355, order.cfStatus);
  row.emplace_back(64655, order.status);
  addIf(row, 20008, order.reason);
  return row;
}

SimFields historyRow(const Order& order, const OrderEvent& event) {
  SimFields row{{64001, order.number},
                {31003, order.user},
                {63001, order.exchange},
                {10303, event.status},
                {12008, order.priceType},
                {10306, event.price},
                {12004, event.quantity},
                {50100, std::to_string(event.time)},
                {50101, std::to_string(event.fraction)},
                {63100, order.issueId},
                {54056, order.proCli},
                client(order)};
  addIf(row, 49238, order.exchangeNumber);
  addIf(row, 54158, order.guiNumber);
  addIf(row, 20008, event.reason);
  return row;
}

SimFields filterRow(const Order& order) {
  return {{64001, order.number},   client(order),        {12004, order.quantity},
          {10332, order.pCode},    {10306, order.price}, {64655, order.status},
          {12008, order.priceType}};
}

}  // namespace sim
