// The one process-wide object that owns everything of the plug-in while it runs.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>

#include "basket/basket_port.h"
#include "domain/order_book_lists.h"
#include "domain/record_maps.h"
#include "issues/issues_port.h"
#include "messaging/dispatch_context.h"
#include "messaging/market_depth_state.h"
#include "messaging/message_layer.h"
#include "orderbook/order_book_port.h"
#include "orderentry/order_entry_port.h"
#include "plugin/client_overview.h"
#include "plugin/host_service_table.h"
#include "plugin/plugin_platform.h"
#include "sdk/host_app.h"
#include "sdk/rx_control.h"

class CWatchView;

// The screens reach the block through the ports their folders declare, the dispatcher through
// its context.
class COFSControlBlock final : public IIrbeNotifier,
                               public OrderEntryPort,
                               public IssuesPort,
                               public OrderBookPort,
                               public BasketPort,
                               private DispatchContext {
 public:
  // Binds the host's services from `hostModule`.
  COFSControlBlock(const SymbolLookup& hostModule, PluginPlatform& platform);
  ~COFSControlBlock();
  COFSControlBlock(const COFSControlBlock&) = delete;
  COFSControlBlock& operator=(const COFSControlBlock&) = delete;

  // [0] user id, [1] and [2] peer identities, [3] host version text, [4] spare.
  std::array<std::string, 5> identities;
  StringList mappedAccounts;
  otp_handle_t handle = nullptr;
  otp_scratch_t scratch = nullptr;
  const SymbolLookup* hostModule;
  pu_get_peer_data_fn peerData = nullptr;
  uint32_t loginKind = 0;
  IVornHostApp* app = nullptr;
  std::unique_ptr<IVornDocTemplate> docTemplate;
  HostServiceTable services;
  std::string userDirectory;
  std::array<int64_t, 2> fontVariation{};
  // Text of the last "om_get_user_peer_data" answer.
  std::string peerDataText;

  MessageLayer layer;
  PluginPlatform& platform;
  CWatchView* watchView = nullptr;  // set while the watch view lives
  OFSRecords recordMaps;
  OrderBookLists bookLists;

  // The windows that follow what the dispatcher learns; each is empty while its window is
  // not there.
  std::function<void(std::unique_ptr<sOFSOrderInfo>)> onHistoryRow;
  std::function<void()> onHistoryEnd;
  std::function<void()> onMarketDepthChanged;
  // The depth kept for a subscribed price feed changed (the watch view's details pane).
  std::function<void(const MarketDepthState&)> onFeedDepthChanged;
  // Resets and closes the issue dialog; true when it was adding an issue.
  std::function<bool()> onEndIssueDialog;
  // The host made another client active (empty: none); the order book filters to it.
  std::function<void(const std::string&)> onActiveClientChanged;

  // Shared with the client subscription worker, which may outlive the block.
  std::shared_ptr<SubscriptionGate> subscriptionGate = std::make_shared<SubscriptionGate>();

  // Subscribes the price feed of an instrument once and keeps its depth from then on; later
  // calls do nothing.
  void ensurePriceFeed(const std::string& exchange, const std::string& symbol) override;
  const MarketDepthState* feedDepthOf(const std::string& exchange,
                                      const std::string& symbol) const override;

  void OnLiveUpdate(otp_msg_t msg) override;
  void OnResponse(otp_msg_t msg) override;

  // Host services as the plug-in uses them; a missing service answers "no" or does nothing.
  bool hasRight(const std::string& rightName) const;
  void log(const std::string& line) const override;
  void hostMessageBox(const std::string& text) const override;
  const std::string& userId() const override { return identities[0]; }
  int64_t now() const override { return platform.now(); }
  MessageLayer& messageLayer() override { return layer; }
  bool hasAddIssueRight() override;
  OrderContext orderContext() override;
  PromptPort& prompt() override { return platform.prompt(); }
  const sOFSCol* issueOfOrder(const sOFSOrderInfo& order) const override {
    return findRecord(recordMaps.issues, order.symbol);
  }
  const sOFSCol* issueOfSymbol(const std::string& symbol) const override {
    return findRecord(recordMaps.issues, symbol);
  }
  const sOFSCol* issueOfId(const std::string& issueId) const override;
  const sOFSOrderInfo* orderOfNumber(const std::string& number) const override {
    return findRecord(recordMaps.orders, number);
  }
  // The member's participant code is the first peer identity.
  std::string tmCode() const override { return identities[1]; }

 private:
  // DispatchContext
  const OtpOps& otp() override { return layer.ops(); }
  OFSRecords& records() override { return recordMaps; }
  OrderBookLists& orderBook() override { return bookLists; }
  void tabbedLog(const std::string& line) override { log(line); }
  void messageBox(const std::string& text) override { platform.prompt().message(text); }
  std::string defaultPCode() override { return identities[1]; }
  void storePeerData(const std::string& text) override { peerDataText = text; }
  void issueAdded(sOFSCol& issue) override;
  void assetFirstShown(const std::string& exchange, const std::string& symbol) override;
  void refreshWatchView() override;
  bool endIssueDialog() override { return onEndIssueDialog ? onEndIssueDialog() : true; }
  void historyRowAdded(std::unique_ptr<sOFSOrderInfo> row) override;
  void historyReplyEnded() override;
  MarketDepthState* marketDepth() override { return marketDepth_.get(); }
  void marketDepthChanged() override;
  void handInstrumentToHost(const std::string& exchange, const std::string& symbol) override;
  MarketDepthState* feedDepth(const std::string& exchange, const std::string& symbol) override {
    return const_cast<MarketDepthState*>(feedDepthOf(exchange, symbol));
  }
  void feedDepthChanged(const MarketDepthState& depth) override {
    if (onFeedDepthChanged) onFeedDepthChanged(depth);
  }

  // OrderEntryPort
  bool isValidAccount(const std::string& account) const override;
  std::vector<std::string> userAccounts() const override;
  std::vector<std::string> hostClientTypes() const override;
  void clientTypeChosen(const std::string& type) override;
  std::string participantCodeOf(const std::string& account) const override;
  const std::vector<std::string>* clientCategoriesOf(const std::string& category) const override;

  // IssuesPort
  IIrbeRxControl* obtainRxControl(int kind) override;
  void releaseRxControl(IIrbeRxControl* control) override;
  void attachWatchView(CWatchView* view) override { watchView = view; }
  CWatchView* attachedWatchView() const override { return watchView; }
  bool registerHotkey(void* window, const HotkeyRow& row) override;
  std::unique_ptr<MarketDepthState>& marketDepthState() override { return marketDepth_; }
  std::vector<const sOFSCol*> knownIssues() const override;

  // One per subscribed price feed, in the order subscribed; a handful, so a walk finds one.
  std::deque<MarketDepthState> feedDepths_;
  // Present while the Market Depth window is open.
  std::unique_ptr<MarketDepthState> marketDepth_;
};

// The process-wide pointer: null before initialisation and after shutdown.
COFSControlBlock* controlBlock();
void setControlBlock(COFSControlBlock* block);
