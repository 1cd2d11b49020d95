#include <gtest/gtest.h>

#include <functional>

#include "tests/support/order_entry_fixture.h"

namespace {

using Strings = std::vector<std::string>;

class Reactions : public OrderEntryFixture {
 protected:
  void openOn(const sOFSCol& issue, Strings accounts = {"A1", "A2"}) {
    host.state.accounts = std::move(accounts);
    host.state.pcodes = {{"P1", "PC1"}};
    start();
    block().recordMaps.categories["CAT"] = {"RI", "RIC", "EMP", "NII", "IC", "MF", "OTHS"};
    dialog->open(addIssue(issue));
    prompt().clear();
  }
  const OrderEntryFields& f() const { return dialog->fields(); }
};

struct FilterCase {
  const char* name;
  std::function<bool(COrderEntryDlg&, const std::string&)> type;
  std::function<std::string(const OrderEntryFields&)> read;
  const char* text;
  bool accepted;
};

class InputFilters : public Reactions, public testing::WithParamInterface<FilterCase> {};

TEST_P(InputFilters, AcceptOnlyTheirCharacters) {
  openOn(nseIssue());
  dialog->selectClientType("Walkin");
  EXPECT_EQ(GetParam().type(*dialog, GetParam().text), GetParam().accepted);
  EXPECT_EQ(GetParam().read(f()), GetParam().accepted ? GetParam().text : "");
}

const auto kQuantity = [](COrderEntryDlg& d, const std::string& t) { return d.setQuantity(t); };
const auto kPrice = [](COrderEntryDlg& d, const std::string& t) { return d.setPrice(t); };
const auto kCode = [](COrderEntryDlg& d, const std::string& t) { return d.setWalkinClientCode(t); };
const auto kPCode = [](COrderEntryDlg& d, const std::string& t) {
  return d.setWalkinParticipantCode(t);
};
const auto kQuantityText = [](const OrderEntryFields& f) { return f.quantity.text; };
const auto kPriceText = [](const OrderEntryFields& f) { return f.price.text; };
const auto kCodeText = [](const OrderEntryFields& f) { return f.walkinClientCode.text; };
const auto kPCodeText = [](const OrderEntryFields& f) { return f.walkinParticipantCode.text; };

INSTANTIATE_TEST_SUITE_P(
    Fields, InputFilters,
    testing::Values(FilterCase{"quantity_digits", kQuantity, kQuantityText, "0123", true},
                    FilterCase{"quantity_point", kQuantity, kQuantityText, "1.5", false},
                    FilterCase{"quantity_letter", kQuantity, kQuantityText, "12a", false},
                    FilterCase{"price_decimal", kPrice, kPriceText, "12.50", true},
                    FilterCase{"price_comma", kPrice, kPriceText, "12,5", false},
                    FilterCase{"price_mkt_is_not_typed", kPrice, kPriceText, "MKT", false},
                    FilterCase{"walkin_code", kCode, kCodeText, "AU12", true},
                    FilterCase{"walkin_code_q", kCode, kCodeText, "AQ1", false},
                    FilterCase{"walkin_code_lower_case", kCode, kCodeText, "ab1", false},
                    FilterCase{"walkin_code_blank", kCode, kCodeText, "A B", false},
                    FilterCase{"walkin_pcode", kPCode, kPCodeText, "PU1", true},
                    FilterCase{"walkin_pcode_q", kPCode, kPCodeText, "PQ", false}),
    [](const auto& info) { return info.param.name; });

struct ClientTypeCase {
  const char* name;
  const char* series;
  Strings accounts;
  const char* clientType;
  EntryText clientCode;
  bool walkinShown;
  bool participantCodeEnabled;
};

class ClientType : public Reactions, public testing::WithParamInterface<ClientTypeCase> {};

TEST_P(ClientType, ShowsTheFieldsOfItsKind) {
  const ClientTypeCase& c = GetParam();
  openOn(nseIssue(c.series), c.accounts);
  dialog->selectClientType(c.clientType);
  EXPECT_EQ(f().clientCode.text, c.clientCode.text);
  EXPECT_EQ(f().clientCode.enabled, c.clientCode.enabled);
  EXPECT_EQ(f().clientCode.visible, c.clientCode.visible);
  EXPECT_EQ(f().clientSearchEnabled, c.clientCode.enabled);
  EXPECT_EQ(f().walkinClientCode.visible, c.walkinShown);
  EXPECT_EQ(f().walkinParticipantCode.visible, c.walkinShown);
  EXPECT_EQ(f().participantCode.enabled, c.participantCodeEnabled);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ClientType,
    testing::Values(
        ClientTypeCase{"cli_one_account", "RS", {"A1"}, "CLI", {"A1", false, true}, false, false},
        ClientTypeCase{
            "cli_several_accounts", "RS", {"A1", "A2"}, "CLI", {"", true, true}, false, false},
        ClientTypeCase{
            "cli_non_retail_series", "IS", {"A1", "A2"}, "CLI", {"", true, true}, false, true},
        ClientTypeCase{
            "pro_is_the_user", "IS", {"A1", "A2"}, "PRO", {"U1", false, true}, false, false},
        ClientTypeCase{"walkin", "RS", {"A1"}, "Walkin", {"", false, false}, true, false}),
    [](const auto& info) { return info.param.name; });

TEST_F(Reactions, AnNseBidOffersThreeClientTypesAndNoCategory) {
  openOn(nseIssue());
  EXPECT_EQ(f().clientType.items, (Strings{"CLI", "PRO", "Walkin"}));
  EXPECT_EQ(f().clientType.selected, "CLI");
  EXPECT_TRUE(f().clientCategory.items.empty());
  EXPECT_FALSE(f().clientCategory.enabled);
}

TEST_F(Reactions, AnNseRetailAccountWithPCodeIsRefused) {
  openOn(nseIssue("RS"));
  dialog->setClientCode("P1");
  EXPECT_EQ(prompt().messages(), Lines{"Client with Pcode Cannot Place Retail Orders"});
  EXPECT_EQ(f().clientCode.text, "");
}

TEST_F(Reactions, AnNseInstitutionalAccountWithPCodeMayBidWithoutMargin) {
  openOn(nseIssue("IS"));
  dialog->setClientCode("P1");
  EXPECT_TRUE(prompt().messages().empty());
  EXPECT_EQ(f().margin.items, (Strings{"100% Margin", "No Margin"}));
  EXPECT_EQ(f().margin.selected, "No Margin");
  EXPECT_EQ(f().participantCode.items, Strings{"PC1"});
  EXPECT_EQ(f().participantCode.selected, "PC1");
  EXPECT_FALSE(f().cutOffEnabled);
  dialog->setClientCode("A1");
  EXPECT_EQ(f().margin.items, Strings{"100% Margin"});
  EXPECT_TRUE(f().participantCode.items.empty());
}

TEST_F(Reactions, ABseRetailAccountWithPCodeIsRefused) {
  openOn(bseIssue("Employee"));
  dialog->setClientCode("P1");
  EXPECT_EQ(prompt().messages(), Lines{"Client with Pcode Cannot Place Retail Orders"});
  EXPECT_EQ(f().clientCode.text, "");
}

TEST_F(Reactions, ABseNonInstitutionalAccountWithPCodeBecomesInstitutional) {
  openOn(bseIssue("NonRetail"));
  dialog->selectOrderType("Non-institutional");
  EXPECT_EQ(f().clientCategory.items, Strings{"NII"});
  dialog->setClientCode("P1");
  EXPECT_EQ(prompt().messages(),
            Lines{"Client with Pcode cannot place order in Non-institutional Order. Order Type is "
                  "reset to Institutional"});
  EXPECT_EQ(f().clientCode.text, "P1");
  EXPECT_EQ(f().orderType.selected, "Institutional");
  EXPECT_EQ(f().clientCategory.items, (Strings{"RI", "RIC", "EMP", "IC", "MF", "OTHS"}));
  EXPECT_EQ(f().margin.items, (Strings{"100% Margin", "No Margin"}));
  EXPECT_EQ(f().margin.selected, "No Margin");
}

TEST_F(Reactions, ABseRetailBidOffersRiUntilTheCutOffIsTicked) {
  openOn(bseIssue("Retail"));
  EXPECT_EQ(f().orderType.selected, "Retail");
  EXPECT_EQ(f().clientCategory.items, Strings{"RI"});
  dialog->setCutOff(true);
  EXPECT_EQ(f().clientCategory.items, Strings{"RIC"});
  EXPECT_EQ(f().clientCategory.selected, "RIC");
  EXPECT_EQ(f().price.text, "MKT");
  EXPECT_FALSE(f().price.enabled);
  dialog->setCutOff(false);
  EXPECT_EQ(f().price.text, "");
  EXPECT_TRUE(f().price.enabled);
}

TEST_F(Reactions, ABseEmployeeRetailBidOffersEveryCategory) {
  openOn(bseIssue("Employee"));
  EXPECT_EQ(f().clientCategory.items.size(), 7u);
  EXPECT_EQ(f().clientCategory.selected, "RI");
}

TEST_F(Reactions, OpeningShowsTheIssue) {
  sOFSCol issue = bseIssue("Retail");
  issue.field67 = "15:30:00";
  openOn(issue);
  EXPECT_EQ(dialog->heading(), "Place OFS Order 3.14.7");
  EXPECT_EQ(dialog->buttonText(), "Submit");
  EXPECT_EQ(f().ofsId.text, "XYZ-Retail");
  EXPECT_EQ(f().exchange.text, "BSEIPO");
  EXPECT_EQ(f().priceRange, "100-200");
  EXPECT_EQ(f().closingTime, "15:30:00");
  EXPECT_EQ(f().indicativePrice.text, "150");
  EXPECT_TRUE(f().cutOffEnabled);
}

TEST_F(Reactions, AnIssueWithoutCutOffKeepsTheBoxClear) {
  sOFSCol issue = nseIssue();
  issue.field63059 = "N";
  openOn(issue);
  EXPECT_FALSE(dialog->setCutOff(true));
  EXPECT_FALSE(f().cutOff);
}

class HeadingListener : public OrderEntryListener {
 public:
  void fieldsChanged() override {}
  void choicesChanged() override {}
  void headingChanged() override { ++headings; }
  int headings = 0;
};

TEST_F(Reactions, TheListenerHearsOfHeadingChanges) {
  openOn(nseIssue());
  HeadingListener listener;
  dialog->setListener(&listener);
  dialog->openForModification(openOrder(), *dialog->issue());
  EXPECT_EQ(listener.headings, 1);
  EXPECT_EQ(dialog->heading(), "Modify OFS Order");
}

}  // namespace
