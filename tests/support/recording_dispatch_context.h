// A dispatch context over real records and book lists that records what the dispatcher told
// the host and the windows, in one list of events, and sends through a TestChannel.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "messaging/dispatch_context.h"
#include "messaging/response_dispatcher.h"
#include "tests/support/message_fixtures.h"
#include "tests/support/test_channel.h"

class RecordingDispatchContext : public DispatchContext {
 public:
  const OtpOps& otp() override { return connectvornOps(); }
  OFSRecords& records() override { return store; }
  OrderBookLists& orderBook() override { return book; }
  MessageLayer& messageLayer() override { return channel.layer; }
  void tabbedLog(const std::string& line) override { events.push_back("log " + line); }
  void messageBox(const std::string& text) override { events.push_back("msgbox " + text); }
  bool hasAddIssueRight() override { return addIssueRight; }
  std::string defaultPCode() override { return "DEFPC"; }
  void storePeerData(const std::string& text) override { events.push_back("peer " + text); }
  void issueAdded(sOFSCol& issue) override { events.push_back("issue added " + issue.symbol); }
  void assetFirstShown(const std::string& exchange, const std::string& symbol) override {
    events.push_back("asset shown " + exchange + " " + symbol);
  }
  void refreshWatchView() override { events.push_back("watch refreshed"); }
  bool endIssueDialog() override {
    events.push_back("issue dialog closed");
    return dialogAdding;
  }
  void historyRowAdded(std::unique_ptr<sOFSOrderInfo> row) override {
    history.push_back(std::move(row));
  }
  void historyReplyEnded() override { events.push_back("history ended"); }
  MarketDepthState* marketDepth() override { return depth ? &*depth : nullptr; }
  void marketDepthChanged() override { events.push_back("depth changed"); }
  void handInstrumentToHost(const std::string& exchange, const std::string& symbol) override {
    events.push_back("host gets " + exchange + " " + symbol);
  }

  void respond(const FieldList& fields) { dispatchResponse(*this, makeMessage(fields).get()); }
  void update(const FieldList& fields) { dispatchLiveUpdate(*this, makeMessage(fields).get()); }
  // Order numbers of a book list, top line first.
  static std::vector<std::string> orderNumbers(const BookList& list);

  TestChannel channel;
  OFSRecords store;
  OrderBookLists book;
  std::vector<std::string> events;
  std::vector<std::unique_ptr<sOFSOrderInfo>> history;
  std::optional<MarketDepthState> depth;
  bool addIssueRight = false;
  bool dialogAdding = true;
};
