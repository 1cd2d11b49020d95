#include <gtest/gtest.h>

#include <functional>

#include "tests/support/order_entry_fixture.h"

namespace {

using Arrange = std::function<void(sOFSCol&, sOFSOrderInfo&)>;

const Arrange kAsIs = [](sOFSCol&, sOFSOrderInfo&) {};

void onIsSeries(sOFSCol& issue, sOFSOrderInfo& order) {
  issue = nseIssue("IS");
  order.symbol = issue.symbol;
}

void isNoMarginOrder(sOFSCol& issue, sOFSOrderInfo& order) {
  onIsSeries(issue, order);
  order.margin = "No Margin";
}

class Modify : public OrderEntryFixture {
 protected:
  // Starts the plug-in with accounts A1 and A2 and opens order 17 for modification.
  void openModify(const Arrange& arrange = kAsIs) {
    sOFSCol issue = nseIssue();
    sOFSOrderInfo order = openOrder();
    arrange(issue, order);
    host.state.accounts = {"A1", "A2"};
    start();
    block().recordMaps.categories["CAT"] = {"RI", "RIC", "NII", "IC"};
    dialog->openForModification(order, addIssue(issue));
  }
};

struct RefusalCase {
  const char* name;
  Arrange arrange;
  EntryAct act;
  std::string message;
  std::string focus = "";
};

class ModifyRefusal : public Modify, public testing::WithParamInterface<RefusalCase> {};

TEST_P(ModifyRefusal, ShowsItsMessageSendsNothingAndStaysInModification) {
  openModify(GetParam().arrange);
  GetParam().act(*dialog);
  prompt().clear();
  const OrderEntryFields typed = dialog->fields();
  dialog->submit();
  EXPECT_EQ(prompt().messages(), Lines{GetParam().message});
  EXPECT_EQ(prompt().focused(), GetParam().focus.empty() ? Lines{} : Lines{GetParam().focus});
  EXPECT_TRUE(sends().empty());
  EXPECT_EQ(dialog->heading(), "Modify OFS Order");
  EXPECT_EQ(dialog->fields().quantity.text, typed.quantity.text);
  EXPECT_EQ(dialog->fields().price.text, typed.price.text);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, ModifyRefusal,
    testing::Values(
        RefusalCase{"one_second_after_closing",
                    [](sOFSCol& i, sOFSOrderInfo&) { i.field67 = "09:59:59"; }, kNoAct,
                    "Cannot Place ofs after offer Closing time"},
        RefusalCase{"bse_without_category",
                    [](sOFSCol& i, sOFSOrderInfo& o) {
                      i = bseIssue("Retail");
                      i.category = "NONE";
                      o.exchange = "bse_ipo";
                      o.symbol = i.symbol;
                    },
                    kNoAct, "client category is not set for the selected AccountID"},
        RefusalCase{"above_the_ceiling", kAsIs, typePrice("250"),
                    "Price placed is beyond the Ceiling Price"},
        RefusalCase{"empty_price", kAsIs, typePrice(""), "Please enter some Price"},
        RefusalCase{"zero_price", kAsIs, typePrice("0"), "Price cant be zero", "Price"},
        RefusalCase{"off_the_orders_tick", [](sOFSCol&, sOFSOrderInfo& o) { o.issueTickSize = 1; },
                    typePrice("150.5"),
                    "Price should be multiple of Tick Size which is 1.00 rupees for this security"},
        RefusalCase{"empty_quantity", kAsIs, typeQuantity(""), "Please enter some quantity"},
        RefusalCase{"below_minimum", kAsIs, typeQuantity("5"), "Order minimum Quantity is 10"},
        RefusalCase{"off_the_lot", kAsIs, typeQuantity("12"),
                    "Qty should be a multiple of Lot which is 5 for this security"},
        RefusalCase{"is_no_margin_price_down", isNoMarginOrder, typePrice("140"),
                    "Price cannot be modified downwards"},
        RefusalCase{"is_no_margin_quantity_down", isNoMarginOrder, typeQuantity("50"),
                    "Quantity cannot be modified downwards"},
        RefusalCase{"below_the_floor", kAsIs, typePrice("90"),
                    "Price Should be more than or equal to Floor Price 100.0000"},
        RefusalCase{"above_issue_size", [](sOFSCol& i, sOFSOrderInfo&) { i.issueSize = 50; },
                    kNoAct, "Qty should be lesser than 50 (Issue Size) for this security"},
        RefusalCase{"retail_amount", kAsIs, typeQuantity("2000"),
                    "Amount cannot be greater than 200000 for RS series orders"},
        RefusalCase{"non_retail_amount", onIsSeries, kNoAct,
                    "Amount Should Exceed 500000 for IS series orders"},
        RefusalCase{"ten_digit_quantity",
                    [](sOFSCol& i, sOFSOrderInfo& o) {
                      onIsSeries(i, o);
                      i.lotSize = 0;
                    },
                    typeQuantity("1000000000"), "Qty. should not be more than 9 Digits"}),
    [](const auto& info) { return info.param.name; });

TEST_F(Modify, AnNseMarketOrderShowsMktInADisabledPrice) {
  openModify([](sOFSCol&, sOFSOrderInfo& o) {
    o.priceType = "MKT";
    o.price = "MKT";
  });
  EXPECT_EQ(dialog->fields().price.text, "MKT");
  EXPECT_FALSE(dialog->fields().price.enabled);
}

TEST_F(Modify, IsSentThenTheScreenReturnsToNewBids) {
  openModify();
  EXPECT_EQ(dialog->buttonText(), "Modify");
  EXPECT_EQ(dialog->fields().price.text, "150.00");
  dialog->setPrice("160");
  dialog->setQuantity("200");
  dialog->submit();
  EXPECT_TRUE(prompt().messages().empty());
  EXPECT_EQ(sends(), Lines{"send 1 om_modify_order_ofs 63001=\"nse_ipo\" 31003=\"U1\" "
                           "54001=\"A1\" 63100=\"I1\" 12005=\"OFS\" 12008=\"L\" 10306=\"16000\" "
                           "12004=\"200\" 64001=\"17\" 12003=\"B\" 54056=\"Active\" "
                           "64170=\"YES\" 54158=\"UUID-1\""});
  EXPECT_EQ(dialog->heading(), "Place OFS Order 3.14.7");
  EXPECT_EQ(dialog->buttonText(), "Submit");
  EXPECT_FALSE(dialog->modifying());
  EXPECT_EQ(dialog->fields().quantity.text, "");
  EXPECT_TRUE(dialog->fields().clientType.enabled);
}

TEST_F(Modify, ACutOffEntryGoesAtTheCeiling) {
  openModify();
  dialog->setCutOff(true);
  dialog->submit();
  ASSERT_EQ(sends().size(), 1u);
  EXPECT_NE(sends()[0].find("12008=\"MKT\" 32760=\"MKT\" 10306=\"20000\""), std::string::npos);
}

struct RevisionCase {
  const char* name;
  Arrange arrange;
  const char* price;
  const char* quantity;
};

class AcceptedRevision : public Modify, public testing::WithParamInterface<RevisionCase> {};

TEST_P(AcceptedRevision, IsSent) {
  openModify(GetParam().arrange);
  dialog->setPrice(GetParam().price);
  dialog->setQuantity(GetParam().quantity);
  dialog->submit();
  EXPECT_TRUE(prompt().messages().empty());
  EXPECT_EQ(sends().size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(Directions, AcceptedRevision,
                         testing::Values(RevisionCase{"is_no_margin_up", isNoMarginOrder, "160",
                                                      "4000"},
                                         RevisionCase{"rs_down", kAsIs, "140", "50"}),
                         [](const auto& info) { return info.param.name; });

TEST_F(Modify, AnOrderWithoutAccountGoesAsWalkinWithTheTypedPCode) {
  openModify([](sOFSCol&, sOFSOrderInfo& o) {
    o.clientId = "";
    o.walkinClientId = "W1";
    o.pCode = "WP";
  });
  EXPECT_TRUE(dialog->fields().walkinParticipantCode.visible);
  dialog->setWalkinParticipantCode("WP2");
  dialog->submit();
  EXPECT_EQ(sends(), Lines{"send 1 om_modify_order_walkin 63001=\"nse_ipo\" 31003=\"U1\" "
                           "64916=\"W1\" 63100=\"I1\" 12005=\"OFS\" 12008=\"L\" "
                           "10306=\"15000\" 12004=\"100\" 64001=\"17\" 12003=\"B\" "
                           "54056=\"Active\" 64170=\"YES\" 10332=\"WP2\" 54158=\"UUID-1\""});
}

TEST_F(Modify, AFailedSendStaysInModification) {
  openModify();
  host.state.controls.at(0)->failSends(true);
  dialog->submit();
  EXPECT_EQ(prompt().messages(), Lines{"modify_ipo_ofs_order is failed , while sending request"});
  EXPECT_TRUE(dialog->modifying());
  EXPECT_EQ(dialog->fields().quantity.text, "100");
}

}  // namespace
