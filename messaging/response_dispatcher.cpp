#include "messaging/response_dispatcher.h"

#include <string_view>

#include "messaging/dispatch_steps.h"

namespace {

struct RowRoute {
  std::string_view name;
  RowHandler handle;
};

constexpr RowRoute kRowRoutes[] = {
    {"om_get_ofs_category", handleCategoryRow},
    {"om_get_ofs_issues", handleIssueRow},
    {"get_company_ofs_issue", handleCompanyIssueRow},
    {"om_put_order_ofs", handlePlacedOrderRow},
    {"om_put_order_walkin", handlePlacedWalkinOrderRow},
    {"om_filter_order_ofs", handleFilteredOrderRow},
    {"om_order_report_ofs", handleReportedOrderRow},
    {"om_get_user_order_ofs", handleReportedOrderRow},
    {"om_modify_order_ofs", handleModifiedOrderRow},
    {"om_modify_order_walkin", handleModifiedWalkinOrderRow},
    {"mrv_master", handleMarketRow},
    {"om_get_order_history_ofs", handleHistoryRow},
    {"om_get_user_peer_data", handlePeerDataRow},
};

}  // namespace

void dispatchLiveUpdate(DispatchContext& context, otp_msg_t message) {
  MessageView update(context.otp(), message);
  if (update.has(64001)) handleOrderUpdate(context, update);
  if (update.has(63001) && update.has(10100)) applyLiveMarketData(context, update);
}

void dispatchResponse(DispatchContext& context, otp_msg_t message) {
  MessageView answer(context.otp(), message);
  std::string name = answer.text(32767);
  if (answer.count(32766) > 0) return handleReplyEnd(context, answer, name);
  for (const RowRoute& route : kRowRoutes) {
    if (route.name == name) return route.handle(context, answer);
  }
}
