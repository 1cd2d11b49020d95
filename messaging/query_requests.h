// The read-only requests and the subscriptions. Every builder returns 1 whatever happened.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "messaging/message_layer.h"

int32_t requestIssueList(MessageLayer& layer, const std::string& exchange);
// The order book is asked in two halves that differ in one letter; a refresh sends "C" then "F".
int32_t requestOrderBookC(MessageLayer& layer, const std::string& exchange,
                          const std::string& userId);
int32_t requestOrderBookF(MessageLayer& layer, const std::string& exchange,
                          const std::string& userId);
void refreshOrderBook(MessageLayer& layer, const std::string& exchange, const std::string& userId);
int32_t requestUserOrders(MessageLayer& layer, const std::string& exchange,
                          const std::string& userId);
int32_t requestOrderHistory(MessageLayer& layer, const std::string& orderNo,
                            const std::string& userId);
int32_t requestOrderFilter(MessageLayer& layer, const std::string& orderNo);
int32_t requestCategories(MessageLayer& layer);
int32_t requestPeerData(MessageLayer& layer, const std::string& userId);
int32_t requestAccountInfo(MessageLayer& layer, const std::string& accountId,
                           const std::string& tag);
int32_t requestBseCustodian(MessageLayer& layer, const std::string& accountId,
                            const std::string& tag);
// `companyKey` is sent only when not empty; the lookup is defined for NSE issues only.
int32_t requestCompanyIssue(MessageLayer& layer, const std::string& companyKey,
                            const std::string& issueKey);
int32_t requestAssetLtp(MessageLayer& layer, const std::string& exchange,
                        const std::string& assetSymbol);

// The identity key and value the order broadcasts are subscribed under, by login kind.
struct BroadcastIdentity {
  uint32_t key;
  std::string value;
};
BroadcastIdentity broadcastIdentity(uint32_t loginKind,
                                    const std::array<std::string, 5>& identities);
void subscribeOrderBroadcasts(const MessageLayer& layer, const BroadcastIdentity& identity,
                              const std::string& exchange);
// Two subscriptions for one client: "nse_ipo" then "bse_ipo".
void subscribeClientOverview(const MessageLayer& layer, const std::string& clientId);
void subscribeMarketPrice(const MessageLayer& layer, const std::string& exchange,
                          const std::string& symbol);
