#include "messaging/order_fill.h"

#include "messaging/field_table.h"

namespace {

using O = sOFSOrderInfo;

constexpr TextField<O> kReportedOrderFields[] = {
    {63001, &O::exchange},   {12005, &O::field12005},
    {64821, &O::field64821}, {64926, &O::field64926},
    {50110, &O::field50110}, {64001, &O::ofsOrderNo},
    {64820, &O::field64820}, {64655, &O::status},
    {10306, &O::price},      {20008, &O::rejectionReason},
    {63100, &O::issueId},    {54001, &O::clientId},
    {12004, &O::quantity},   {12003, &O::field12003},
    {54002, &O::field54002}, {31003, &O::field31003},
    {10355, &O::cfStatus},   {64916, &O::walkinClientId},
    {63058, &O::field12005},  // 63058 is kept over 12005 on purpose
    {10100, &O::symbol},     {64658, &O::field64658},
    {10309, &O::field10309}, {49238, &O::field49238},
    {40001, &O::field40001}, {40002, &O::field40002},
    {10332, &O::pCode},      {54158, &O::guiOrderNo},
    {63225, &O::field63225}, {55, &O::field55},
    {10027, &O::field10027}, {63022, &O::field63022},
    {63023, &O::field63023}, {10308, &O::field10308},
    {10307, &O::field10307},
};

constexpr TextField<O> kFilteredOrderFields[] = {
    {64001, &O::ofsOrderNo},     {54001, &O::clientId},  {12004, &O::quantity},
    {64916, &O::walkinClientId}, {10332, &O::pCode},     {10306, &O::price},
    {64655, &O::status},         {12008, &O::priceType},
};

}  // namespace

void applyPriceType(const std::string& wire, std::string& priceType) {
  if (wire == "MKT" || wire == "L") priceType = wire;
}

void applyMarginWord(const std::string& wire, std::string& margin) {
  if (wire == "YES") margin = "100% Margin";
  if (wire == "NO") margin = "No Margin";
}

void applyProCliFlag(const std::string& wire, std::string& flag) {
  if (wire == "C" || wire == "F") flag = wire;
}

void fillReportedOrder(const MessageView& row, sOFSOrderInfo& order) {
  fillText<O>(row, order, kReportedOrderFields);
  applyPriceType(row.text(12008), order.priceType);
  applyMarginWord(row.text(64170), order.margin);
  if (order.exchange == "bse_ipo") row.text(13034, 0, order.pCode);
  applyProCliFlag(row.text(54056), order.proCliFlag);
}

void fillFilteredOrder(const MessageView& row, sOFSOrderInfo& order) {
  fillText<O>(row, order, kFilteredOrderFields);
}
