// A dispatch context with records and book lists and nothing else, for the programs that drive
// the dispatcher without a host: benchmarks and fuzz harnesses. Header only, no test framework.
#pragma once

#include <memory>
#include <string>

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
  void tabbedLog(const std::string&) override {}
  void messageBox(const std::string&) override {}
  bool hasAddIssueRight() override { return addIssueRight; }
  std::string defaultPCode() override { return "PC"; }
  void storePeerData(const std::string&) override {}
  void issueAdded(sOFSCol&) override {}
  void assetFirstShown(const std::string&, const std::string&) override {}
  void refreshWatchView() override {}
  bool endIssueDialog() override { return true; }
  void historyRowAdded(std::unique_ptr<sOFSOrderInfo>) override {}
  void historyReplyEnded() override {}
  MarketDepthState* marketDepth() override { return depth.get(); }
  void marketDepthChanged() override {}
  void handInstrumentToHost(const std::string&, const std::string&) override {}

  OFSRecords store;
  OrderBookLists book;
  SilentPrompt prompt;
  MessageLayer layer{connectvornOps(), prompt};
  bool addIssueRight = true;
  std::unique_ptr<MarketDepthState> depth;  // set: the Market Depth window is open
};
