#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <tuple>

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

TEST_F(Reactions, EachFieldAcceptsOnlyItsCharacters) {
  using D = COrderEntryDlg;
  using F = OrderEntryFields;
  const std::vector<std::tuple<bool (D::*)(const std::string&), EntryText F::*, const char*, bool>>
      typed{{&D::setQuantity, &F::quantity, "0123", true},
            {&D::setQuantity, &F::quantity, "1.5", false},
            {&D::setQuantity, &F::quantity, "12a", false},
            {&D::setPrice, &F::price, "12.50", true},
            {&D::setPrice, &F::price, "12,5", false},
            {&D::setPrice, &F::price, "MKT", false},
            {&D::setWalkinClientCode, &F::walkinClientCode, "AU12", true},
            {&D::setWalkinClientCode, &F::walkinClientCode, "AQ1", false},
            {&D::setWalkinParticipantCode, &F::walkinParticipantCode, "PU1", true},
            {&D::setWalkinParticipantCode, &F::walkinParticipantCode, "PQ", false}};
  openOn(nseIssue());
  dialog->selectClientType("Walkin");
  for (const auto& [type, field, text, accepted] : typed) {
    const std::string before = (f().*field).text;
    EXPECT_EQ(((*dialog).*type)(text), accepted) << text;
    EXPECT_EQ((f().*field).text, accepted ? text : before) << text;
  }
}

// Client type, series and accounts: code text/enabled/visible, walk-in fields, participant list.
TEST_F(Reactions, EachClientTypeShowsTheFieldsOfItsKind) {
  const std::vector<std::tuple<const char*, Strings, const char*, const char*>> kinds{
      {"RS", {"A1"}, "CLI", "A1 disabled shown, no walk-in, no pcode"},
      {"RS", {"A1", "A2"}, "CLI", " enabled shown, no walk-in, no pcode"},
      {"IS", {"A1", "A2"}, "CLI", " enabled shown, no walk-in, pcode"},
      {"IS", {"A1", "A2"}, "PRO", "U1 disabled shown, no walk-in, no pcode"},
      {"RS", {"A1"}, "Walkin", " disabled hidden, walk-in, no pcode"}};
  for (const auto& [series, accounts, type, shows] : kinds) {
    openOn(nseIssue(series), accounts);
    dialog->selectClientType(type);
    const OrderEntryFields& x = f();
    EXPECT_EQ(x.clientSearchEnabled, x.clientCode.enabled) << type;
    EXPECT_EQ(x.walkinClientCode.visible, x.walkinParticipantCode.visible) << type;
    EXPECT_EQ(x.clientCode.text + (x.clientCode.enabled ? " enabled" : " disabled") +
                  (x.clientCode.visible ? " shown" : " hidden") +
                  (x.walkinClientCode.visible ? ", walk-in" : ", no walk-in") +
                  (x.participantCode.enabled ? ", pcode" : ", no pcode"),
              shows)
        << series << " " << type;
  }
}

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
  issue.field63059 = std::string(1, 'N');  // gcc 12 -O3 misreads a literal assignment
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
