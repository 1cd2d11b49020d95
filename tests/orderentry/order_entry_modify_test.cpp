#include <gtest/gtest.h>

#include <functional>
#include <ostream>

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
    dialog->openForModification(order, addIssue(issue));
  }
};

using Case = SubmitCase<Arrange>;
class ModifySubmit : public Modify, public testing::WithParamInterface<Case> {};

TEST_P(ModifySubmit, RefusesWithItsMessageStayingInModificationOrSends) {
  openModify(GetParam().arrange);
  GetParam().act(*dialog);
  submitExpecting(GetParam().message, GetParam().focus);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, ModifySubmit,
    testing::Values(
        Case{"one_second_after_closing", [](sOFSCol& i, sOFSOrderInfo&) { i.field67 = "09:59:59"; },
             kNoAct, "Cannot Place ofs after offer Closing time"},
        Case{"bse_without_category",
             [](sOFSCol& i, sOFSOrderInfo& o) {
               i = bseIssue("Retail");
               i.category = "NONE";
               o.exchange = "bse_ipo";
               o.symbol = i.symbol;
             },
             kNoAct, "client category is not set for the selected AccountID"},
        Case{"above_the_ceiling", kAsIs, typePrice("250"),
             "Price placed is beyond the Ceiling Price"},
        Case{"empty_price_before_quantity", kAsIs, typeEntry("", ""), "Please enter some Price"},
        Case{"zero_price", kAsIs, typePrice("0"), "Price cant be zero", "Price"},
        Case{"off_the_orders_tick", [](sOFSCol&, sOFSOrderInfo& o) { o.issueTickSize = 1; },
             typePrice("150.5"),
             "Price should be multiple of Tick Size which is 1.00 rupees for this security"},
        Case{"empty_quantity", kAsIs, typeQuantity(""), "Please enter some quantity"},
        Case{"below_minimum", kAsIs, typeQuantity("5"), "Order minimum Quantity is 10"},
        Case{"off_the_lot", kAsIs, typeQuantity("12"),
             "Qty should be a multiple of Lot which is 5 for this security"},
        Case{"is_no_margin_price_down", isNoMarginOrder, typePrice("140"),
             "Price cannot be modified downwards"},
        Case{"is_no_margin_quantity_down", isNoMarginOrder, typeQuantity("50"),
             "Quantity cannot be modified downwards"},
        Case{"below_the_floor", kAsIs, typePrice("90"),
             "Price Should be more than or equal to Floor Price 100.0000"},
        Case{"above_issue_size", [](sOFSCol& i, sOFSOrderInfo&) { i.issueSize = 50; }, kNoAct,
             "Qty should be lesser than 50 (Issue Size) for this security"},
        Case{"retail_amount", kAsIs, typeQuantity("2000"),
             "Amount cannot be greater than 200000 for RS series orders"},
        Case{"non_retail_amount", onIsSeries, kNoAct,
             "Amount Should Exceed 500000 for IS series orders"},
        Case{"ten_digit_quantity",
             [](sOFSCol& i, sOFSOrderInfo& o) { onIsSeries(i, o), i.lotSize = 0; },
             typeQuantity("1000000000"), "Qty. should not be more than 9 Digits"},
        Case{"is_no_margin_up", isNoMarginOrder, typeEntry("160", "4000"), ""},
        Case{"rs_down", kAsIs, typeEntry("140", "50"), ""}));

TEST_F(Modify, AnNseMarketOrderShowsMktInADisabledPriceAndGoesAtTheCeiling) {
  openModify([](sOFSCol&, sOFSOrderInfo& o) {
    o.priceType = "MKT";
    o.price = "MKT";
  });
  EXPECT_EQ(dialog->fields().price.text, "MKT");
  EXPECT_FALSE(dialog->fields().price.enabled);
  dialog->submit();
  ASSERT_EQ(sends().size(), 1u);
  EXPECT_NE(sends()[0].find("12008=\"MKT\" 32760=\"MKT\" 10306=\"20000\""), std::string::npos);
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
