#include "tests/support/order_entry_fixture.h"

#include "plugin/lifecycle.h"

// One-letter texts are assigned as strings: gcc 12 -O3 misreads a literal assignment (-Wrestrict).
using namespace std::string_literals;

OrderEntryFixture::OrderEntryFixture() {
  host.clock = localTime(21, 11, 2026, 10 * 3600);
  placedOrderRecords().clear();
}

OrderEntryFixture::~OrderEntryFixture() {
  dialog.reset();
  exitPlugin(host);
  placedOrderRecords().clear();
}

void OrderEntryFixture::start() {
  initPlugin(host, host.app(), "U1", 3);
  block().recordMaps.categories["CAT"] = {"RI", "RIC", "EMP", "NII", "IC", "MF", "OTHS"};
  dialog = std::make_unique<COrderEntryDlg>(block(), host.promptLog);
  host.state.events.clear();
  host.promptLog.clear();
}

void OrderEntryFixture::submitExpecting(const std::string& message, const std::string& focus) {
  prompt().clear();
  const OrderEntryFields typed = dialog->fields();
  const bool modifying = dialog->modifying();
  dialog->submit();
  EXPECT_EQ(prompt().messages(), message.empty() ? Lines{} : Lines{message});
  EXPECT_EQ(prompt().focused(), focus.empty() ? Lines{} : Lines{focus});
  EXPECT_EQ(sends().size(), message.empty() ? 1u : 0u);
  if (message.empty()) return;
  EXPECT_EQ(dialog->modifying(), modifying);
  EXPECT_EQ(dialog->fields().quantity.text, typed.quantity.text);
  EXPECT_EQ(dialog->fields().price.text, typed.price.text);
  EXPECT_EQ(dialog->fields().clientCode.text, typed.clientCode.text);
}

Lines OrderEntryFixture::sends() const {
  Lines lines;
  for (const std::string& event : host.state.events)
    if (event.rfind("send ", 0) == 0) lines.push_back(event);
  return lines;
}

sOFSCol nseIssue(const std::string& series) {
  sOFSCol issue;
  issue.issueId = "I1";
  issue.exchange = "nse_ipo";
  issue.symbol = "ABC-" + series;
  issue.floorPrice = "100";
  issue.field63023 = "200";
  issue.tickSize = 0.05;
  issue.minQuantity = 10;
  issue.lotSize = 5;
  issue.field54009 = "200000";
  issue.hniLimit = "500000";
  issue.field63059 = "Y"s;
  issue.field54803 = "150";
  return issue;
}

sOFSCol bseIssue(const std::string& series) {
  sOFSCol issue = nseIssue();
  issue.exchange = "bse_ipo";
  issue.symbol = "XYZ-" + series;
  issue.category = "CAT";
  return issue;
}

const sOFSCol& OrderEntryFixture::addIssue(const sOFSCol& issue) {
  auto& slot = block().recordMaps.issues[issue.symbol];
  slot = std::make_unique<sOFSCol>(issue);
  return *slot;
}

sOFSOrderInfo openOrder(const std::string& symbol) {
  sOFSOrderInfo order;
  order.exchange = "nse_ipo";
  order.field31003 = "U1";
  order.clientId = "A1";
  order.issueId = "I1";
  order.symbol = symbol;
  order.ofsOrderNo = "17";
  order.status = "open";
  order.price = "15000";
  order.quantity = "100";
  order.priceType = "L"s;
  order.field12003 = "B"s;
  order.cfStatus = "Active";
  order.margin = "100% Margin";
  order.proCliFlag = "C"s;
  return order;
}
