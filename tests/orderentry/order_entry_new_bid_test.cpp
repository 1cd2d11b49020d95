#include <gtest/gtest.h>

#include <functional>

#include "tests/support/order_entry_fixture.h"

namespace {

using Arrange = std::function<void(sOFSCol&, FakeHostState&)>;

const Arrange kAsIs = [](sOFSCol&, FakeHostState&) {};

Arrange series(const std::string& name) {
  return [name](sOFSCol& i, FakeHostState&) { i = nseIssue(name); };
}

Arrange closingAt(const std::string& time) {
  return [time](sOFSCol& i, FakeHostState&) { i.field67 = time; };
}

class NewBid : public OrderEntryFixture {
 protected:
  // Starts the plug-in with account A1 (and what `arrange` adds), opens a bid on the issue and
  // types quantity 100 at 150.
  void openBid(sOFSCol issue, const Arrange& arrange = kAsIs) {
    host.state.accounts = {"A1"};
    host.state.peer1 = "P1";
    arrange(issue, host.state);
    start();
    block().recordMaps.categories["CAT"] = {"RI", "RIC", "EMP", "NII", "IC", "MF", "OTHS"};
    dialog->open(addIssue(issue));
    dialog->setQuantity("100");
    dialog->setPrice("150");
  }
};

struct RefusalCase {
  const char* name;
  Arrange arrange;
  EntryAct act;
  std::string message;
  std::string focus = "";
};

class NewBidRefusal : public NewBid, public testing::WithParamInterface<RefusalCase> {};

TEST_P(NewBidRefusal, ShowsItsMessageSendsNothingAndKeepsTheFields) {
  openBid(nseIssue(), GetParam().arrange);
  GetParam().act(*dialog);
  prompt().clear();
  const OrderEntryFields typed = dialog->fields();
  dialog->submit();
  EXPECT_EQ(prompt().messages(), Lines{GetParam().message});
  EXPECT_EQ(prompt().focused(), GetParam().focus.empty() ? Lines{} : Lines{GetParam().focus});
  EXPECT_TRUE(sends().empty());
  EXPECT_EQ(dialog->fields().quantity.text, typed.quantity.text);
  EXPECT_EQ(dialog->fields().price.text, typed.price.text);
  EXPECT_EQ(dialog->fields().clientCode.text, typed.clientCode.text);
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
    Steps, NewBidRefusal,
    testing::Values(
        RefusalCase{"one_second_after_closing", closingAt("09:59:59"), kNoAct,
                    "Cannot Place ofs after offer Closing time"},
        RefusalCase{"bse_without_category", kBseWithoutCategories, kNoAct,
                    "client category is not set for the selected AccountID"},
        RefusalCase{"empty_quantity", kAsIs, typeQuantity(""), "Please enter Quantity", "Quantity"},
        RefusalCase{"issue_without_id", [](sOFSCol& i, FakeHostState&) { i.issueId = ""; }, kNoAct,
                    "IssueID not found"},
        RefusalCase{"empty_price", kAsIs, typePrice(""), "Please enter Price", "Price"},
        RefusalCase{"zero_price", kAsIs, typePrice("0"), "Price cant be zero", "Price"},
        RefusalCase{"zero_price_two_decimals", kAsIs, typePrice("0.00"), "Price cant be zero",
                    "Price"},
        RefusalCase{"zero_price_one_decimal", kAsIs, typePrice("0.0"), "Price cant be zero",
                    "Price"},
        RefusalCase{"off_the_tick", kAsIs, typePrice("150.03"),
                    "Price should be multiple of Tick Size which is 0.05 rupees for this security"},
        RefusalCase{"three_paise_digits", kAsIs, typePrice("150.505"),
                    "Please enter the paise correctly"},
        RefusalCase{"below_minimum", kAsIs, typeQuantity("5"), "Order minimum Quantity is 10"},
        RefusalCase{"off_the_lot", kAsIs, typeQuantity("12"),
                    "Qty should be a multiple of Lot which is 5 for this security"},
        RefusalCase{"above_issue_size", [](sOFSCol& i, FakeHostState&) { i.issueSize = 50; },
                    kNoAct, "Qty should be lesser than 50 (Issue Size) for this security"},
        RefusalCase{"walkin_without_code", kAsIs, pickClientType("Walkin"),
                    "Please select AccountId"},
        RefusalCase{"account_the_host_does_not_know", kTwoAccounts,
                    [](auto& d) { d.setClientCode("ZZ"); }, "Please select AccountId",
                    "Client Code"},
        RefusalCase{"no_account_among_several", kTwoAccounts, kNoAct, "Please select AccountId",
                    "Client Code"},
        RefusalCase{"pro_without_full_margin", kUserWithPCode, pickClientType("PRO"),
                    "Margin Indicator should be set as 100% for PRO order"},
        RefusalCase{"above_the_ceiling", kAsIs, typePrice("250"),
                    "Price placed is beyond the Ceiling Price"},
        RefusalCase{"retail_amount", kAsIs, typeQuantity("2000"),
                    "Amount cannot be greater than 200000 for RS series orders"},
        RefusalCase{"non_retail_amount", series("IS"), kNoAct,
                    "Amount Should Exceed 500000 for IS series orders"},
        RefusalCase{"pcode_with_non_institutional", kAccountWithPCode,
                    [](auto& d) {
                      d.selectOrderType("Non-institutional");
                      d.setQuantity("4000");
                    },
                    "Client with Pcode cannot place order in Non-institutional Order."},
        RefusalCase{"ten_digit_quantity", kNoLot, typeQuantity("1000000000"),
                    "Qty. should not be more than 9 Digits"},
        RefusalCase{"below_the_floor", kAsIs, typePrice("90"),
                    "Price Should be more than Floor Price 100.0000", "Price"}),
    [](const auto& info) { return info.param.name; });

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

TEST_F(NewBid, ABseBidCarriesItsCategoryWhichTheResetClears) {
  openBid(bseIssue("Retail"));
  dialog->submit();
  ASSERT_EQ(sends().size(), 1u);
  EXPECT_NE(sends()[0].find("63001=\"bse_ipo\""), std::string::npos);
  EXPECT_NE(sends()[0].find("63058=\"RI\""), std::string::npos);
  EXPECT_EQ(dialog->fields().clientCategory.selected, "");
}

TEST_F(NewBid, TheNextBseBidMustChooseItsCategoryAgain) {
  openBid(bseIssue("Retail"), kTwoAccounts);
  dialog->setClientCode("A1");
  dialog->submit();
  ASSERT_EQ(sends().size(), 1u);
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

TEST_F(NewBid, TheClosingSecondAndNineDigitsStillPass) {
  openBid(nseIssue(), [](sOFSCol& i, FakeHostState& h) {
    kNoLot(i, h);
    i.field67 = "10:00:00";
  });
  dialog->setQuantity("999999999");
  dialog->submit();
  EXPECT_TRUE(prompt().messages().empty());
  EXPECT_EQ(sends().size(), 1u);
}

TEST_F(NewBid, AFailedSendKeepsTheScreenFilled) {
  openBid(nseIssue());
  host.state.controls.at(0)->failSends(true);
  dialog->submit();
  EXPECT_EQ(prompt().messages(), Lines{"set_ipo_ofs_order is failed , while sending request"});
  EXPECT_EQ(dialog->fields().quantity.text, "100");
  EXPECT_TRUE(placedOrderRecords().empty());
}

// A walk-in bid of 100 at 150 on `issue` as the screen would hold it.
OrderEntryFields walkinEntry(const sOFSCol& issue) {
  OrderEntryFields f;
  f.ofsId.text = issue.symbol;
  f.exchange.text = "NSEIPO";
  f.quantity.text = "100";
  f.price.text = "150";
  f.priceRange = "100-200";
  f.cutOffFlag = "Y";
  f.clientType.selected = "Walkin";
  f.walkinClientCode.text = "W1";
  f.margin.selected = "100% Margin";
  return f;
}

const auto kAnyClient = [](const std::string&) { return true; };

// What the screen's filters never let through, given to the sequence itself.
struct SequenceCase {
  const char* name;
  std::function<void(OrderEntryFields&)> entry;
  std::string message;
};

class NewBidSequence : public testing::TestWithParam<SequenceCase> {};

TEST_P(NewBidSequence, ChecksWhatTheScreenCannotType) {
  const sOFSCol issue = nseIssue();
  OrderEntryFields f = walkinEntry(issue);
  GetParam().entry(f);
  sOFSPlaceOrder bid;
  const Verdict v = checkNewBid(f, {issue, 0, "U1", kAnyClient}, bid);
  ASSERT_TRUE(v);
  EXPECT_EQ(v->message, GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Entries, NewBidSequence,
    testing::Values(
        SequenceCase{"hyphen_in_client_code", [](auto& f) { f.walkinClientCode.text = "W-1"; },
                     "Please enter an alphanumeric value for Client Code."},
        SequenceCase{"blank_in_pcode", [](auto& f) { f.walkinParticipantCode.text = "P 1"; },
                     "Please enter an alphanumeric value for participant code."},
        SequenceCase{"hyphen_in_pcode", [](auto& f) { f.walkinParticipantCode.text = "P-1"; },
                     "Please enter an alphanumeric value for participant code."}),
    [](const auto& info) { return info.param.name; });

TEST(NewBidRecord, AZeroPriceWithTheCutOffBoxGoesAtTheCeiling) {
  const sOFSCol issue = nseIssue();
  OrderEntryFields f = walkinEntry(issue);
  f.price.text = "0";
  f.cutOff = true;
  sOFSPlaceOrder bid;
  ASSERT_FALSE(checkNewBid(f, {issue, 0, "U1", kAnyClient}, bid));
  EXPECT_EQ(bid.priceType, "MKT");
  EXPECT_EQ(bid.price, "200");
  EXPECT_EQ(bid.marketFlag, "Y");
  EXPECT_EQ(bid.cutOffText, "Y");
}

}  // namespace
