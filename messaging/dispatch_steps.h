// The dispatcher's steps, one group per file; used by response_dispatcher.cpp only.
#pragma once

#include <string>

#include "messaging/dispatch_context.h"
#include "messaging/field_readers.h"

using RowHandler = void (*)(DispatchContext&, const MessageView&);

// reply_end.cpp
void handleReplyEnd(DispatchContext& context, const MessageView& end, const std::string& name);

// issue_rows.cpp
void handleCategoryRow(DispatchContext& context, const MessageView& row);
void handleIssueRow(DispatchContext& context, const MessageView& row);
void handleCompanyIssueRow(DispatchContext& context, const MessageView& row);

// order_rows.cpp
void handleReportedOrderRow(DispatchContext& context, const MessageView& row);
// A live order update: refills a known order and moves it by its status, or creates a new one
// on the top line of its list. A row without 64001 is ignored.
void handleOrderUpdate(DispatchContext& context, const MessageView& update);
void handleFilteredOrderRow(DispatchContext& context, const MessageView& row);
void handleHistoryRow(DispatchContext& context, const MessageView& row);
void handlePeerDataRow(DispatchContext& context, const MessageView& row);

// order_logs.cpp
void handlePlacedOrderRow(DispatchContext& context, const MessageView& row);
void handlePlacedWalkinOrderRow(DispatchContext& context, const MessageView& row);
void handleModifiedOrderRow(DispatchContext& context, const MessageView& row);
void handleModifiedWalkinOrderRow(DispatchContext& context, const MessageView& row);

// market_data.cpp
void handleMarketRow(DispatchContext& context, const MessageView& row);
void applyLiveMarketData(DispatchContext& context, const MessageView& update);
