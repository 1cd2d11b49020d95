#include <gtest/gtest.h>

#include <functional>
#include <ostream>

#include "tests/support/order_entry_fixture.h"

namespace {

using Strings = std::vector<std::string>;

class Reactions : public OrderEntryFixture {
 protected:
  void openOn(const sOFSCol& issue, Strings accounts = {"A1", "A2"}) {
    host.state.accounts = std::move(accounts);
    host.state.pcodes = {{"P1", "PC1"}};
    start();
    dialog->open(addIssue(issue));
    prompt().clear();
  }
  const OrderEntryFields& f() const { return dialog->fields(); }
};

struct FilterCase {
  const char* name;
  bool (COrderEntryDlg::*type)(const std::string&);
  EntryText OrderEntryFields::*field;
  const char* text;
  bool accepted;
  friend void PrintTo(const FilterCase& c, std::ostream* os) { *os << c.name; }
};

class InputFilters : public Reactions, public testing::WithParamInterface<FilterCase> {};

TEST_P(InputFilters, AcceptOnlyTheirCharacters) {
  const FilterCase& c = GetParam();
  openOn(nseIssue());
  dialog->selectClientType("Walkin");
  EXPECT_EQ(((*dialog).*c.type)(c.text), c.accepted);
  EXPECT_EQ((f().*c.field).text, c.accepted ? c.text : "");
}

using D = COrderEntryDlg;
using F = OrderEntryFields;

INSTANTIATE_TEST_SUITE_P(
    Fields, InputFilters,
    testing::Values(
        FilterCase{"quantity_digits", &D::setQuantity, &F::quantity, "0123", true},
        FilterCase{"quantity_point", &D::setQuantity, &F::quantity, "1.5", false},
        FilterCase{"quantity_letter", &D::setQuantity, &F::quantity, "12a", false},
        FilterCase{"price_decimal", &D::setPrice, &F::price, "12.50", true},
        FilterCase{"price_comma", &D::setPrice, &F::price, "12,5", false},
        FilterCase{"price_mkt_is_not_typed", &D::setPrice, &F::price, "MKT", false},
        FilterCase{"walkin_code", &D::setWalkinClientCode, &F::walkinClientCode, "AU12", true},
        FilterCase{"walkin_code_q", &D::setWalkinClientCode, &F::walkinClientCode, "AQ1", false},
        FilterCase{"walkin_pcode", &D::setWalkinParticipantCode, &F::walkinParticipantCode, "PU1",
                   true},
        FilterCase{"walkin_pcode_q", &D::setWalkinParticipantCode, &F::walkinParticipantCode, "PQ",
                   false}));

struct ClientTypeCase {
  const char* name;
  const char* series;
  Strings accounts;
  const char* clientType;
  EntryText clientCode;
  bool walkinShown;
  bool participantCodeEnabled;
  friend void PrintTo(const ClientTypeCase& c, std::ostream* os) { *os << c.name; }
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
        ClientTypeCase{"walkin", "RS", {"A1"}, "Walkin", {"", false, false}, true, false}));

TEST_F(Reactions, AnNseBidOffersThreeClientTypesAndNoCategory) {
  openOn(nseIssue());
  EXPECT_EQ(f().clientType.items, (Strings{"CLI", "PRO", "Walkin"}));
  EXPECT_EQ(f().clientType.selected, "CLI");
  EXPECT_TRUE(f().clientCategory.items.empty());
  EXPECT_FALSE(f().clientCategory.enabled);
}

TEST_F(Reactions, ARetailAccountWithPCodeIsRefusedOnEitherExchange) {
  for (const sOFSCol& issue : {nseIssue("RS"), bseIssue("Employee")}) {
    openOn(issue);
    dialog->setClientCode("P1");
    EXPECT_EQ(prompt().messages(), Lines{"Client with Pcode Cannot Place Retail Orders"})
        << issue.symbol;
    EXPECT_EQ(f().clientCode.text, "") << issue.symbol;
  }
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

// An employee series offers every category of the issue.
TEST_F(Reactions, OpeningShowsTheIssueAndItsCategories) {
  sOFSCol issue = bseIssue("Employee");
  issue.field67 = "15:30:00";
  openOn(issue);
  EXPECT_EQ(f().clientCategory.items.size(), 7u);
  EXPECT_EQ(f().clientCategory.selected, "RI");
  EXPECT_EQ(f().ofsId.text, "XYZ-Employee");
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
