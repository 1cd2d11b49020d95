#include <gtest/gtest.h>

#include <functional>

#include "tests/support/order_entry_fixture.h"

namespace {

using Arrange = std::function<void(sOFSCol&, FakeHostState&)>;
using Act = std::function<void(COrderEntryDlg&)>;

const Arrange kAsIs = [](sOFSCol&, FakeHostState&) {};
const Act kNothing = [](COrderEntryDlg&) {};

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
  Act act;
  std::string message;
  std::string focus;
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

INSTANTIATE_TEST_SUITE_P(
    Steps, NewBidRefusal,
    testing::Values(
        RefusalCase{"one_second_after_closing",
                    [](sOFSCol& i, FakeHostState&) { i.field67 = "09:59:59"; }, kNothing,
                    "Cannot Place ofs after offer Closing time", ""},
        RefusalCase{"bse_without_category",
                    [](sOFSCol& i, FakeHostState&) {
                      i = bseIssue("Retail");
                      i.category = "NONE";
                    },
                    kNothing, "client category is not set for the selected AccountID", ""},
        RefusalCase{"empty_quantity", kAsIs, [](auto& d) { d.setQuantity(""); },
                    "Please enter Quantity", "Quantity"},
        RefusalCase{"issue_without_id", [](sOFSCol& i, FakeHostState&) { i.issueId = ""; },
                    kNothing, "IssueID not found", ""},
        RefusalCase{"empty_price", kAsIs, [](auto& d) { d.setPrice(""); }, "Please enter Price",
                    "Price"},
        RefusalCase{"zero_price", kAsIs, [](auto& d) { d.setPrice("0"); }, "Price cant be zero",
                    "Price"},
        RefusalCase{"zero_price_two_decimals", kAsIs, [](auto& d) { d.setPrice("0.00"); },
                    "Price cant be zero", "Price"},
        RefusalCase{"zero_price_one_decimal", kAsIs, [](auto& d) { d.setPrice("0.0"); },
                    "Price cant be zero", "Price"},
        RefusalCase{"off_the_tick", kAsIs, [](auto& d) { d.setPrice("150.03"); },
                    "Price should be multiple of Tick Size which is 0.05 rupees for this security",
                    ""},
        RefusalCase{"three_paise_digits", kAsIs, [](auto& d) { d.setPrice("150.505"); },
                    "Please enter the paise correctly", ""},
        RefusalCase{"below_minimum", kAsIs, [](auto& d) { d.setQuantity("5"); },
                    "Order minimum Quantity is 10", ""},
        RefusalCase{"off_the_lot", kAsIs, [](auto& d) { d.setQuantity("12"); },
                    "Qty should be a multiple of Lot which is 5 for this security", ""},
        RefusalCase{"above_issue_size", [](sOFSCol& i, FakeHostState&) { i.issueSize = 50; },
                    kNothing, "Qty should be lesser than 50 (Issue Size) for this security", ""},
        RefusalCase{"walkin_without_code", kAsIs, [](auto& d) { d.selectClientType("Walkin"); },
                    "Please select AccountId", ""},
        RefusalCase{"account_the_host_does_not_know",
                    [](sOFSCol&, FakeHostState& h) {
                      h.accounts = {"A1", "A2"};
                    },
                    [](auto& d) { d.setClientCode("ZZ"); }, "Please select AccountId",
                    "Client Code"},
        RefusalCase{"no_account_among_several",
                    [](sOFSCol&, FakeHostState& h) {
                      h.accounts = {"A1", "A2"};
                    },
                    kNothing, "Please select AccountId", "Client Code"},
        RefusalCase{"pro_without_full_margin",
                    [](sOFSCol& i, FakeHostState& h) {
                      i = nseIssue("IS");
                      h.pcodes["U1"] = "PC9";
                    },
                    [](auto& d) { d.selectClientType("PRO"); },
                    "Margin Indicator should be set as 100% for PRO order", ""},
        RefusalCase{"above_the_ceiling", kAsIs, [](auto& d) { d.setPrice("250"); },
                    "Price placed is beyond the Ceiling Price", ""},
        RefusalCase{"retail_amount", kAsIs, [](auto& d) { d.setQuantity("2000"); },
                    "Amount cannot be greater than 200000 for RS series orders", ""},
        RefusalCase{"non_retail_amount", [](sOFSCol& i, FakeHostState&) { i = nseIssue("IS"); },
                    kNothing, "Amount Should Exceed 500000 for IS series orders", ""},
        RefusalCase{"pcode_with_non_institutional",
                    [](sOFSCol& i, FakeHostState& h) {
                      i = nseIssue("IS");
                      h.pcodes["A1"] = "PC1";
                    },
                    [](auto& d) {
                      d.selectOrderType("Non-institutional");
                      d.setQuantity("4000");
                    },
                    "Client with Pcode cannot place order in Non-institutional Order.", ""},
        RefusalCase{"ten_digit_quantity",
                    [](sOFSCol& i, FakeHostState&) {
                      i = nseIssue("IS");
                      i.lotSize = 0;
                    },
                    [](auto& d) { d.setQuantity("1000000000"); },
                    "Qty. should not be more than 9 Digits", ""},
        RefusalCase{"below_the_floor", kAsIs, [](auto& d) { d.setPrice("90"); },
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

TEST_F(NewBid, ABseBidCarriesItsCategory) {
  openBid(bseIssue("Retail"));
  ASSERT_EQ(dialog->fields().clientCategory.selected, "RI");
  dialog->submit();
  EXPECT_EQ(sends(), Lines{"send 1 om_put_order_ofs 64030=\"CNC\" 63001=\"bse_ipo\" 31003=\"U1\" "
                           "54001=\"A1\" 63100=\"I1\" 12004=\"100\" 63058=\"RI\" 12008=\"L\" "
                           "10306=\"15000\" 12003=\"B\" 54056=\"C\" 64170=\"YES\" 12005=\"OFS\" "
                           "54158=\"UUID-1\""});
  EXPECT_EQ(dialog->fields().clientCategory.selected, "");
}

TEST_F(NewBid, AWalkinCutOffBidGoesAtTheCeilingWithTheUsersPCode) {
  openBid(nseIssue());
  dialog->selectClientType("Walkin");
  dialog->setWalkinClientCode("WC1");
  dialog->setCutOff(true);
  dialog->setQuantity("100");
  dialog->submit();
  EXPECT_EQ(sends(), Lines{"send 1 om_put_order_walkin 63001=\"nse_ipo\" 31003=\"U1\" "
                           "63100=\"I1\" 12004=\"100\" 12008=\"MKT\" 32760=\"MKT\" "
                           "10306=\"20000\" 12003=\"B\" 54056=\"C\" 64170=\"YES\" 10332=\"P1\" "
                           "12005=\"OFS\" 64916=\"WC1\" 54158=\"UUID-1\""});
  EXPECT_EQ(dialog->fields().price.text, "MKT");
  EXPECT_FALSE(dialog->fields().price.enabled);
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

TEST_F(NewBid, AtTheClosingSecondItIsStillAccepted) {
  openBid(nseIssue(), [](sOFSCol& i, FakeHostState&) { i.field67 = "10:00:00"; });
  dialog->submit();
  EXPECT_EQ(sends().size(), 1u);
}

TEST_F(NewBid, NineDigitsPass) {
  openBid(nseIssue("IS"), [](sOFSCol& i, FakeHostState&) { i.lotSize = 0; });
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

TEST_F(NewBid, WithoutTheUuidServiceNoUniqueIdIsSent) {
  host.state.missingServices.insert("pu_get_uuid");
  openBid(nseIssue());
  dialog->submit();
  ASSERT_EQ(sends().size(), 1u);
  EXPECT_EQ(sends()[0].find("54158"), std::string::npos);
}

// The walk-in fields only take the code alphabet, so the alphanumeric rule is reached through
// the sequence itself.
struct WalkinCodeCase {
  const char* name;
  const char* clientCode;
  const char* pCode;
  const char* message;
};

class WalkinCodes : public testing::TestWithParam<WalkinCodeCase> {};

TEST_P(WalkinCodes, MustBeLettersAndDigits) {
  const sOFSCol issue = nseIssue();
  OrderEntryFields f;
  f.ofsId.text = issue.symbol;
  f.exchange.text = "NSEIPO";
  f.quantity.text = "100";
  f.price.text = "150";
  f.priceRange = "100-200";
  f.clientType.selected = "Walkin";
  f.margin.selected = "100% Margin";
  f.walkinClientCode.text = GetParam().clientCode;
  f.walkinParticipantCode.text = GetParam().pCode;
  sOFSPlaceOrder bid;
  const Verdict v = checkNewBid(f, {issue, 0, "U1", [](auto&) { return true; }}, bid);
  ASSERT_TRUE(v.has_value());
  EXPECT_EQ(v->message, GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Sequence, WalkinCodes,
    testing::Values(WalkinCodeCase{"hyphen_in_client_code", "W-1", "",
                                   "Please enter an alphanumeric value "
                                   "for Client Code."},
                    WalkinCodeCase{"blank_in_pcode", "W1", "P 1",
                                   "Please enter an alphanumeric value for participant code."},
                    WalkinCodeCase{"hyphen_in_pcode", "W1", "P-1",
                                   "Please enter an alphanumeric value for participant code."}),
    [](const auto& info) { return info.param.name; });

TEST(NewBidSequence, AZeroPriceWithTheCutOffBoxIsACutOffBid) {
  const sOFSCol issue = nseIssue();
  OrderEntryFields f;
  f.ofsId.text = issue.symbol;
  f.exchange.text = "NSEIPO";
  f.quantity.text = "100";
  f.price.text = "0";
  f.cutOff = true;
  f.priceRange = "100-200";
  f.cutOffFlag = "Y";
  f.clientType.selected = "CLI";
  f.clientCode.text = "A1";
  f.margin.selected = "100% Margin";
  sOFSPlaceOrder bid;
  EXPECT_FALSE(checkNewBid(f, {issue, 0, "U1", [](auto&) { return true; }}, bid).has_value());
  EXPECT_EQ(bid.priceType, "MKT");
  EXPECT_EQ(bid.price, "200");
  EXPECT_EQ(bid.marketFlag, "Y");
  EXPECT_EQ(bid.cutOffText, "Y");
}

}  // namespace
