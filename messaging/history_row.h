// One row of the reply "om_get_order_history_ofs": one state the order went through.
#pragma once

#include "domain/records.h"
#include "messaging/field_readers.h"

// Fills a new record; false when the row is to be dropped (no 64001, no 31003, or an empty
// status).
bool fillHistoryRow(const MessageView& row, sOFSOrderInfo& line);
