#include "messaging/query_requests.h"

namespace {

// Shared by the order book and the user orders: the back end knows both by this one prefix.
constexpr const char* kOrderBookPrefix = "get_ipo_ofs_order_book is failed , ";

int32_t orderBook(MessageLayer& layer, const char* letter, const std::string& exchange,
                  const std::string& userId) {
  Request r("om_order_report_ofs", kOrderBookPrefix, Control::First);
  r.add(63059, letter).add(63001, exchange).add(54056, letter).add(31003, userId);
  return layer.send(r);
}

int32_t accountQuery(MessageLayer& layer, const char* name, const char* prefix,
                     const std::string& accountId, const std::string& tag) {
  Request r(name, prefix, Control::First);
  r.add(54001, accountId).add(32760, tag);
  return layer.send(r);
}

}  // namespace

int32_t requestIssueList(MessageLayer& layer, const std::string& exchange) {
  Request r("om_get_ofs_issues", "om_get_ofs_issues is failed , ", Control::Second);
  r.add(63001, exchange).add(53065, "A");
  return layer.send(r);
}

int32_t requestOrderBookC(MessageLayer& layer, const std::string& exchange,
                          const std::string& userId) {
  return orderBook(layer, "C", exchange, userId);
}

int32_t requestOrderBookF(MessageLayer& layer, const std::string& exchange,
                          const std::string& userId) {
  return orderBook(layer, "F", exchange, userId);
}

void refreshOrderBook(MessageLayer& layer, const std::string& exchange, const std::string& userId) {
  requestOrderBookC(layer, exchange, userId);
  requestOrderBookF(layer, exchange, userId);
}

int32_t requestUserOrders(MessageLayer& layer, const std::string& exchange,
                          const std::string& userId) {
  Request r("om_get_user_order_ofs", kOrderBookPrefix, Control::First);
  r.add(63059, "walkin").add(63001, exchange).add(31003, userId);
  return layer.send(r);
}

int32_t requestOrderHistory(MessageLayer& layer, const std::string& orderNo,
                            const std::string& userId) {
  Request r("om_get_order_history_ofs", "om_get_order_history_ofs_issue is failed , ",
            Control::First);
  r.add(64001, orderNo).add(31003, userId);
  return layer.send(r);
}

int32_t requestOrderFilter(MessageLayer& layer, const std::string& orderNo) {
  Request r("om_filter_order_ofs", "om_filter_order_ofs is failed , ", Control::First);
  r.add(64001, orderNo);
  return layer.send(r);
}

int32_t requestCategories(MessageLayer& layer) {
  return layer.send(
      Request("om_get_ofs_category", "om_get_ofs_category is failed , ", Control::Second));
}

int32_t requestPeerData(MessageLayer& layer, const std::string& userId) {
  Request r("om_get_user_peer_data", "om_get_user_peer_data is failed , ", Control::First);
  r.add(31003, userId);
  return layer.send(r);
}

int32_t requestAccountInfo(MessageLayer& layer, const std::string& accountId,
                           const std::string& tag) {
  return accountQuery(layer, "om_get_acct_info", "om_get_acct_info is failed , ", accountId, tag);
}

int32_t requestBseCustodian(MessageLayer& layer, const std::string& accountId,
                            const std::string& tag) {
  return accountQuery(layer, "get_bse_custodian", "get_bse_custodian is failed , ", accountId, tag);
}

int32_t requestCompanyIssue(MessageLayer& layer, const std::string& companyKey,
                            const std::string& issueKey) {
  Request r("get_company_ofs_issue", "get_company_ofs_issue is failed , ", Control::First);
  r.addIf(!companyKey.empty(), 64926, companyKey).add(63032, issueKey).add(63001, "nse_ipo");
  return layer.send(r);
}

int32_t requestAssetLtp(MessageLayer& layer, const std::string& exchange,
                        const std::string& assetSymbol) {
  // An unknown exchange is not refused: it goes out as an empty 63001.
  const char* market = exchange == "nse_ipo" ? "nse_cm" : exchange == "bse_ipo" ? "bse_cm" : "";
  Request r("mrv_master", "Sending request to get Asset LTP failed", Control::First);
  r.add(63001, market).add(10100, assetSymbol).add(20003, "6").add(20003, "63050");
  r.add(32760, "Asset LTP");
  return layer.send(r);
}

BroadcastIdentity broadcastIdentity(uint32_t loginKind,
                                    const std::array<std::string, 5>& identities) {
  switch (loginKind) {
    case 0:
      return {64056, ""};
    case 1:
      return {64056, identities[1]};
    case 2:
      return {64053, identities[2]};
    default:
      return {31003, identities[0]};
  }
}

void subscribeOrderBroadcasts(const MessageLayer& layer, const BroadcastIdentity& identity,
                              const std::string& exchange) {
  const uint32_t keys[] = {identity.key, 63001, 64001};
  const std::string values[] = {identity.value, exchange, ""};
  layer.subscribe(Control::Third, keys, values);
}

void subscribeClientOverview(const MessageLayer& layer, const std::string& clientId) {
  const uint32_t keys[] = {54001, 63001};
  for (const char* exchange : {"nse_ipo", "bse_ipo"}) {
    const std::string values[] = {clientId, exchange};
    layer.subscribe(Control::First, keys, values);
  }
}

void subscribeMarketPrice(const MessageLayer& layer, const std::string& exchange,
                          const std::string& symbol) {
  const uint32_t keys[] = {63001, 10100};
  const std::string values[] = {exchange, symbol};
  layer.subscribe(Control::Fifth, keys, values);
}
