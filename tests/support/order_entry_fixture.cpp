#include "tests/support/order_entry_fixture.h"

#include "plugin/lifecycle.h"
#include "tests/support/record_with.h"

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
  using C = sOFSCol;
  return with(C{}, &C::issueId, "I1", &C::exchange, "nse_ipo", &C::symbol, "ABC-" + series,
              &C::floorPrice, "100", &C::field63023, "200", &C::tickSize, 0.05, &C::minQuantity, 10,
              &C::lotSize, 5, &C::field54009, "200000", &C::hniLimit, "500000", &C::field63059,
              "Y"s, &C::field54803, "150");
}

sOFSCol bseIssue(const std::string& series) {
  using C = sOFSCol;
  return with(nseIssue(), &C::exchange, "bse_ipo", &C::symbol, "XYZ-" + series, &C::category,
              "CAT");
}

const sOFSCol& OrderEntryFixture::addIssue(const sOFSCol& issue) {
  auto& slot = block().recordMaps.issues[issue.symbol];
  slot = std::make_unique<sOFSCol>(issue);
  return *slot;
}

sOFSOrderInfo openOrder(const std::string& symbol) {
  using O = sOFSOrderInfo;
  return with(O{}, &O::exchange, "nse_ipo", &O::field31003, "U1", &O::clientId, "A1", &O::issueId,
              "I1", &O::symbol, symbol, &O::ofsOrderNo, "17", &O::status, "open", &O::price,
              "15000", &O::quantity, "100", &O::priceType, "L"s, &O::field12003, "B"s, &O::cfStatus,
              "Active", &O::margin, "100% Margin", &O::proCliFlag, "C"s);
}
