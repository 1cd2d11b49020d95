// A running plug-in on a fake host with one issue in the issues map and an order-entry screen
// on it, for the order-entry tests. The clock reads 21/11/2026 10:00:00.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "orderentry/order_entry.h"
#include "plugin/control_block.h"
#include "tests/support/fake_host.h"

// NSE retail issue I1 "ABC-<series>": band 100-200, tick 0.05, minimum 10, lot 5, no size limit,
// retail limit 200000, non-retail limit 500000, cut-off allowed, no closing time.
sOFSCol nseIssue(const std::string& series = "RS");
// The same terms on BSE, symbol "XYZ-<series>", categories key "CAT".
sOFSCol bseIssue(const std::string& series);
// An open NSE order 17 of account A1 on I1: 100 at 150.00, limit, "100% Margin", by user U1.
sOFSOrderInfo openOrder(const std::string& symbol = "ABC-RS");

// One thing the user does on the screen, for test tables.
using EntryAct = std::function<void(COrderEntryDlg&)>;
inline EntryAct typeQuantity(std::string t) {
  return [t](auto& d) { d.setQuantity(t); };
}
inline EntryAct typePrice(std::string t) {
  return [t](auto& d) { d.setPrice(t); };
}
inline EntryAct typeEntry(std::string p, std::string q) {
  return [=](auto& d) { d.setPrice(p), d.setQuantity(q); };
}
inline EntryAct pickClientType(std::string t) {
  return [t](auto& d) { d.selectClientType(t); };
}
const EntryAct kNoAct = [](COrderEntryDlg&) {};

// A row of a submit table: what is arranged before the screen opens, what the user then does,
// and the refusal the submit must show (empty: it sends).
template <class Arrange>
struct SubmitCase {
  const char* name;
  Arrange arrange;
  EntryAct act;
  std::string message;
  std::string focus = "";
  friend void PrintTo(const SubmitCase& c, std::ostream* os) { *os << c.name; }
};

class OrderEntryFixture : public testing::Test {
 protected:
  OrderEntryFixture();
  ~OrderEntryFixture() override;

  // Starts the plug-in with every BSE category under "CAT"; host settings (accounts, peers)
  // must be made before.
  void start();
  COFSControlBlock& block() { return *controlBlock(); }
  RecordingPrompt& prompt() { return host.promptLog; }
  // Submits. A refusal shows `message` alone, focuses `focus`, sends nothing and keeps what was
  // typed and the mode; an empty `message` expects one send and no message.
  void submitExpecting(const std::string& message, const std::string& focus);
  // The lines the receive controls sent since start().
  Lines sends() const;

  // Stores the issue in the issues map and returns the stored record.
  const sOFSCol& addIssue(const sOFSCol& issue);

  FakeHost host;
  std::unique_ptr<COrderEntryDlg> dialog;
};
