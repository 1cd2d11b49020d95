#include "messaging/history_row.h"

#include <climits>
#include <cstdlib>

#include "domain/date_text.h"
#include "messaging/field_table.h"
#include "messaging/order_fill.h"

namespace {

using O = sOFSOrderInfo;

constexpr TextField<O> kHistoryFields[] = {
    {64001, &O::ofsOrderNo},      {31003, &O::field31003},     {63001, &O::exchange},
    {10303, &O::status},          {10306, &O::price},          {12004, &O::quantity},
    {64750, &O::field64750},      {63100, &O::issueId},        {54001, &O::clientId},
    {49238, &O::field49238},      {64916, &O::walkinClientId}, {54158, &O::guiOrderNo},
    {20008, &O::rejectionReason},
};

std::string timeText(const MessageView& row) {
  int32_t seconds = 0;
  row.number(50100, 0, seconds);
  char buffer[64] = {};
  formatTimeText(seconds, buffer, sizeof buffer);
  return buffer;
}

// The host's truncating conversion: a value out of range (or NaN) gives INT32_MIN.
int32_t truncateToInt32(double value) {
  if (!(value > -2147483649.0 && value < 2147483648.0)) return INT32_MIN;
  return static_cast<int32_t>(value);
}

}  // namespace

bool fillHistoryRow(const MessageView& row, sOFSOrderInfo& line) {
  if (!row.has(64001) || !row.has(31003)) return false;
  fillText<O>(row, line, kHistoryFields);
  if (line.status.empty()) return false;
  if (row.text(12008) == "MKT") line.price = "MKT";
  line.timeText = timeText(row);
  line.timeFraction = truncateToInt32(std::strtod(row.text(50101).c_str(), nullptr));
  applyProCliFlag(row.text(54056), line.proCliFlag);
  return true;
}
