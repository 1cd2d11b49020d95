// A dispatch context over real records and book lists that notes in one list of events what the
// dispatcher told the host and the windows: tests read the events, benchmarks and fuzz harnesses
// ignore them. Header only, no test framework.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "messaging/dispatch_context.h"

class SilentPrompt : public PromptPort {
 public:
  void message(const std::string&) override {}
  bool question(const std::string&) override { return true; }
  std::string chooseFile(bool, const std::string&, const std::string&) override { return {}; }
  void focus(const std::string&) override {}
};

class StandaloneContext : public DispatchContext {
 public:
  virtual ~StandaloneContext() = default;  // harnesses derive and own it by pointer
  const OtpOps& otp() override { return connectvornOps(); }
  OFSRecords& records() override { return store; }
  OrderBookLists& orderBook() override { return book; }
  MessageLayer& messageLayer() override { return layer; }
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
  MarketDepthState* feedDepth(const std::string& exchange, const std::string& symbol) override {
    return kept && kept->exchange == exchange && kept->symbol == symbol ? &*kept : nullptr;
  }
  void feedDepthChanged(const MarketDepthState& d) override {
    events.push_back("feed depth changed " + d.symbol);
  }

  OFSRecords store;
  OrderBookLists book;
  SilentPrompt prompt;
  MessageLayer layer{connectvornOps(), prompt};
  // What the dispatcher told the host and the windows, in order.
  std::vector<std::string> events;
  std::vector<std::unique_ptr<sOFSOrderInfo>> history;
  std::optional<MarketDepthState> depth;  // set: the Market Depth window is open
  std::optional<MarketDepthState> kept;   // set: the instrument's price feed is subscribed
  bool addIssueRight = false;
  bool dialogAdding = true;  // the issue dialog was adding an issue, not modifying one
};
