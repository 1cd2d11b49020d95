#include <gtest/gtest.h>

#include <functional>
#include <ostream>

#include "tests/support/order_entry_fixture.h"

namespace {

using Arrange = std::function<void(sOFSCol&, FakeHostState&)>;

const Arrange kAsIs = [](sOFSCol&, FakeHostState&) {};

class NewBid : public OrderEntryFixture {
 protected:
  // Starts the plug-in with account A1 (and what `arrange` adds), opens a bid on the issue and
  // types quantity 100 at 150.
  void openBid(sOFSCol issue, const Arrange& arrange = kAsIs) {
    host.state.accounts = {"A1"};
    host.state.peer1 = "P1";
    arrange(issue, host.state);
    start();
    dialog->open(addIssue(issue));
    dialog->setQuantity("100");
    dialog->setPrice("150");
  }
};

using Case = SubmitCase<Arrange>;
class NewBidSubmit : public NewBid, public testing::WithParamInterface<Case> {};

TEST_P(NewBidSubmit, RefusesWithItsMessageKeepingTheFieldsOrSends) {
  openBid(nseIssue(), GetParam().arrange);
  GetParam().act(*dialog);
  submitExpecting(GetParam().message, GetParam().focus);
}

const Arrange kBseWithoutCategories = [](sOFSCol& i, FakeHostState&) {
  i = bseIssue("Retail");
  i.category = "NONE";
};
const Arrange kTwoAccounts = [](sOFSCol&, FakeHostState& h) { h.accounts = {"A1", "A2"}; };
const Arrange kUserWithPCode = [](sOFSCol& i, FakeHostState& h) {
  i = nseIssue("IS");
  h.pcodes["U1"] = "PC9";
};
const Arrange kAccountWithPCode = [](sOFSCol& i, FakeHostState& h) {
  i = nseIssue("IS");
  h.pcodes["A1"] = "PC1";
};
const Arrange kNoLot = [](sOFSCol& i, FakeHostState&) {
  i = nseIssue("IS");
  i.lotSize = 0;
};

INSTANTIATE_TEST_SUITE_P(
    Steps, NewBidSubmit,
    testing::Values(
        Case{"bse_without_category", kBseWithoutCategories, kNoAct,
             "client category is not set for the selected AccountID"},
        Case{"empty_quantity_before_price", kAsIs, typeEntry("", ""), "Please enter Quantity",
             "Quantity"},
        Case{"issue_without_id", [](sOFSCol& i, FakeHostState&) { i.issueId = ""; }, kNoAct,
             "IssueID not found"},
        Case{"empty_price", kAsIs, typePrice(""), "Please enter Price", "Price"},
        Case{"zero_price", kAsIs, typePrice("0"), "Price cant be zero", "Price"},
        Case{"zero_price_two_decimals", kAsIs, typePrice("0.00"), "Price cant be zero", "Price"},
        Case{"zero_price_one_decimal", kAsIs, typePrice("0.0"), "Price cant be zero", "Price"},
        Case{"three_paise_digits", kAsIs, typePrice("150.505"), "Please enter the paise correctly"},
        Case{"below_minimum", kAsIs, typeQuantity("5"), "Order minimum Quantity is 10"},
        Case{"above_issue_size", [](sOFSCol& i, FakeHostState&) { i.issueSize = 50; }, kNoAct,
             "Qty should be lesser than 50 (Issue Size) for this security"},
        Case{"walkin_without_code", kAsIs, pickClientType("Walkin"), "Please select AccountId"},
        Case{"account_the_host_does_not_know", kTwoAccounts, [](auto& d) { d.setClientCode("ZZ"); },
             "Please select AccountId", "Client Code"},
        Case{"no_account_among_several", kTwoAccounts, kNoAct, "Please select AccountId",
             "Client Code"},
        Case{"pro_without_full_margin", kUserWithPCode, pickClientType("PRO"),
             "Margin Indicator should be set as 100% for PRO order"},
        Case{"retail_amount", kAsIs, typeQuantity("2000"),
             "Amount cannot be greater than 200000 for RS series orders"},
        Case{"non_retail_amount", [](sOFSCol& i, FakeHostState&) { i = nseIssue("IS"); }, kNoAct,
             "Amount Should Exceed 500000 for IS series orders"},
        Case{"pcode_with_non_institutional", kAccountWithPCode,
             [](auto& d) { d.selectOrderType("Non-institutional"), d.setQuantity("4000"); },
             "Client with Pcode cannot place order in Non-institutional Order."},
        Case{"ten_digit_quantity", kNoLot, typeQuantity("1000000000"),
             "Qty. should not be more than 9 Digits"},
        Case{"below_the_floor", kAsIs, typePrice("90"),
             "Price Should be more than Floor Price 100.0000", "Price"},
        Case{"at_the_closing_second_nine_digits",
             [](sOFSCol& i, FakeHostState& h) { kNoLot(i, h), i.field67 = "10:00:00"; },
             typeQuantity("999999999"), ""}));

TEST_F(NewBid, AnOrdinaryBidIsSentAndRememberedAndTheScreenResets) {
  openBid(nseIssue());
  dialog->submit();
  EXPECT_TRUE(prompt().messages().empty());
  EXPECT_EQ(sends(),
            Lines{"send 1 om_put_order_ofs 64030=\"CNC\" 63001=\"nse_ipo\" 31003=\"U1\" "
                  "54001=\"A1\" 63100=\"I1\" 12004=\"100\" 63058=\"Institutional\" 12008=\"L\" "
                  "10306=\"15000\" 12003=\"B\" 54056=\"C\" 64170=\"YES\" 12005=\"OFS\" "
                  "54158=\"UUID-1\""});
  EXPECT_EQ(placedOrderRecords().size(), 1u);
  EXPECT_EQ(dialog->fields().quantity.text, "");
  EXPECT_EQ(dialog->fields().price.text, "");
  EXPECT_TRUE(dialog->fields().price.enabled);
}

TEST_F(NewBid, TheNextBseBidMustChooseItsCategoryAgain) {
  openBid(bseIssue("Retail"), kTwoAccounts);
  dialog->setClientCode("A1");
  dialog->submit();
  ASSERT_EQ(sends().size(), 1u);
  EXPECT_NE(sends()[0].find("63001=\"bse_ipo\""), std::string::npos);
  EXPECT_NE(sends()[0].find("63058=\"RI\""), std::string::npos);
  dialog->setClientCode("A2");
  dialog->setQuantity("100");
  dialog->setPrice("150");
  prompt().clear();
  dialog->submit();
  EXPECT_EQ(prompt().messages(), Lines{"client category is not set for the selected AccountID"});
  EXPECT_EQ(sends().size(), 1u);
}

TEST_F(NewBid, AWalkinCutOffBidGoesAtTheCeilingWithTheUsersPCode) {
  openBid(nseIssue());
  dialog->selectClientType("Walkin");
  dialog->setWalkinClientCode("WC1");
  dialog->setCutOff(true);
  dialog->submit();
  EXPECT_EQ(sends(), Lines{"send 1 om_put_order_walkin 63001=\"nse_ipo\" 31003=\"U1\" "
                           "63100=\"I1\" 12004=\"100\" 12008=\"MKT\" 32760=\"MKT\" "
                           "10306=\"20000\" 12003=\"B\" 54056=\"C\" 64170=\"YES\" 10332=\"P1\" "
                           "12005=\"OFS\" 64916=\"WC1\" 54158=\"UUID-1\""});
  EXPECT_EQ(dialog->fields().price.text, "MKT");
}

TEST_F(NewBid, AWalkinLimitBidIsNotSentAtMarket) {
  openBid(nseIssue());
  dialog->selectClientType("Walkin");
  dialog->setWalkinClientCode("WC1");
  dialog->setWalkinParticipantCode("WP1");
  dialog->submit();
  ASSERT_EQ(sends().size(), 1u);
  EXPECT_NE(sends()[0].find("12008=\"L\" 10306=\"15000\""), std::string::npos);
  EXPECT_NE(sends()[0].find("10332=\"WP1\""), std::string::npos);
}

TEST_F(NewBid, AFailedSendKeepsTheScreenFilled) {
  openBid(nseIssue());
  host.state.controls.at(0)->failSends(true);
  dialog->submit();
  EXPECT_EQ(prompt().messages(), Lines{"set_ipo_ofs_order is failed , while sending request"});
  EXPECT_EQ(dialog->fields().quantity.text, "100");
  EXPECT_TRUE(placedOrderRecords().empty());
}

// A zero price with the box ticked is a cut-off bid the screen cannot type, given to the
// sequence itself.
TEST(NewBidRecord, AZeroPriceWithTheCutOffBoxGoesAtTheCeiling) {
  const sOFSCol issue = nseIssue();
  OrderEntryFields f;
  f.ofsId.text = issue.symbol;
  f.quantity.text = "100";
  f.price.text = "0";
  f.cutOff = true;
  f.priceRange = "100-200";
  f.cutOffFlag = "Y";
  f.clientType.selected = "Walkin";
  f.walkinClientCode.text = "W1";
  f.margin.selected = "100% Margin";
  sOFSPlaceOrder bid;
  ASSERT_FALSE(checkNewBid(f, {issue, 0, "U1", [](const std::string&) { return true; }}, bid));
  EXPECT_EQ(bid.priceType, "MKT");
  EXPECT_EQ(bid.price, "200");
  EXPECT_EQ(bid.marketFlag, "Y");
  EXPECT_EQ(bid.cutOffText, "Y");
}

}  // namespace
