#include <gtest/gtest.h>

#include "host/sim/subscriptions.h"
#include "tests/host_sim/sim_fixture.h"
#include "tests/support/record_with.h"

namespace simtest {
namespace {

sim::Order nseOrderOfA1() {
  return with(sim::Order{}, &sim::Order::exchange, "nse_ipo", &sim::Order::account, "A1");
}

TEST(Subscriptions, CoverAnOrderByUserOrAccountOnItsExchangeOnly) {
  const struct {
    const char* keys;
    bool covers;
  } cases[] = {{"31003=U1 63001=nse_ipo 64001=", true},
               {"31003=U1 63001=bse_ipo 64001=", false},
               {"54001=A1 63001=nse_ipo", true},
               {"54001=A2 63001=nse_ipo", false},
               {"63001=nse_cm 10100=ABC", false},
               {"63001=nse_ipo 10100=ABC-RS", false},
               {"31003=U1", false}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.keys);
    NullNotifier n;
    sim::Subscriptions subs;
    subs.add(fieldsOf(c.keys), &n);
    EXPECT_EQ(subs.covering(nseOrderOfA1()).size(), c.covers ? 1u : 0u);
  }
}

TEST(Subscriptions, EachNotifierHearsOnceAndNotAfterItIsForgotten) {
  NullNotifier first, second;
  sim::Subscriptions subs;
  subs.add({{31003, "U1"}, {63001, "nse_ipo"}}, &first);
  subs.add({{54001, "A1"}, {63001, "nse_ipo"}}, &second);
  subs.add({{54001, "A1"}, {63001, "nse_ipo"}}, &first);
  subs.add({{54001, "A1"}, {63001, "nse_ipo"}}, &first);
  EXPECT_EQ(subs.size(), 3u);
  EXPECT_EQ(subs.covering(nseOrderOfA1()), (std::vector<IIrbeNotifier*>{&first, &second}));
  subs.forget(&first);
  EXPECT_EQ(subs.covering(nseOrderOfA1()), (std::vector<IIrbeNotifier*>{&second}));
}

FieldList issueAdd(const std::string& symbol, const std::string& floor) {
  return fieldsOf("63001=nse_ipo 3=NEW 10610=RS 63022=" + floor +
                  " 49165=21/11/2026 79=21/11/2026 55=1 10027=1 63005=0.05 10100=" + symbol +
                  " 54730= 54571=Y 32760=NEW-RS 32760=Normal End");
}

TEST(IssueAdministration, AddingUpdatesTheIssueOfThatSymbolOrCreatesOneWithTheNextId) {
  SimFixture f;
  EXPECT_EQ(describe(f, f.ask("om_add_ofs_issue", issueAdd("NEW-RS", "10.00")), {32766, 32760}),
            (Lines{"reply asker om_add_ofs_issue 32766= 32760=NEW-RS 32760=Normal End"}));
  // N4 already lists NEW-RS on nse_ipo: that issue is the one changed.
  f.ask("om_add_ofs_issue", issueAdd("NEW-RS", "12.00"));
  f.ask("om_add_ofs_issue", issueAdd("FRESH-RS", "10.00"));
  EXPECT_EQ(
      describe(f, f.ask("om_get_ofs_issues", fieldsOf("63001=nse_ipo")), {63032, 63022, 10100}),
      (Lines{"reply asker om_get_ofs_issues 63032=N1 63022=100.00 10100=ABC-RS",
             "reply asker om_get_ofs_issues 63032=N2 63022=100.00 10100=ABC-IS",
             "reply asker om_get_ofs_issues 63032=N3 63022=10.00 10100=OLD-RS",
             "reply asker om_get_ofs_issues 63032=N4 63022=12.00 10100=NEW-RS",
             "reply asker om_get_ofs_issues 63032=N5 63022=10.00 10100=HLD-IS",
             "reply asker om_get_ofs_issues 63032=1 63022=10.00 10100=FRESH-RS",
             "reply asker om_get_ofs_issues"}));
}

// Each request would leave an issue the lists cannot place or a bid cannot be checked against.
TEST(IssueAdministration, AnAddThatWouldMakeABrokenIssueIsRefusedAndChangesNothing) {
  const struct {
    const char *change, *error;
  } cases[] = {
      {"3=", "E101 32766=Field 3 is missing"},
      {"10610=", "E101 32766=Field 10610 is missing"},
      {"63022=", "E101 32766=Field 63022 is missing"},
      {"49165=", "E101 32766=Field 49165 is missing"},
      {"49165=31/11/2026", "E102 32766=Field 49165 has a bad value: 31/11/2026"},
      {"79=21-Nov-2026", "E102 32766=Field 79 has a bad value: 21-Nov-2026"},
      {"55=0", "E102 32766=Field 55 has a bad value: 0"},
      {"10027=", "E101 32766=Field 10027 is missing"},
      {"63005=0.00", "E102 32766=Field 63005 has a bad value: 0.00"},
      {"63005=0.005", "E102 32766=Field 63005 has a bad value: 0.005"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.change);
    SimFixture f;
    const FieldList request = changed(issueAdd("FRESH-RS", "10.00"), c.change);
    EXPECT_EQ(describe(f, f.ask("om_add_ofs_issue", request), {32766}),
              (Lines{"reply asker om_add_ofs_issue 32766=" + std::string(c.error)}));
    EXPECT_EQ(describe(f, f.ask("om_get_ofs_issues", fieldsOf("63001=nse_ipo")), {10100}).size(),
              6u);
  }
}

// The fixed clock's day is 21/11/2026: an issue added with fixed dates is listed with them.
TEST(IssueAdministration, AnIssueAddedWithFixedDatesIsListedWithThem) {
  SimFixture f;
  f.ask("om_add_ofs_issue",
        changed(issueAdd("FRESH-RS", "10.00"), "49165=25/11/2026 79=25/11/2026"));
  EXPECT_EQ(
      describe(f, f.ask("om_get_ofs_issues", fieldsOf("63001=nse_ipo")), {49165, 79, 10100}).at(5),
      "reply asker om_get_ofs_issues 49165=25/11/2026 79=25/11/2026 10100=FRESH-RS");
}

TEST(IssueAdministration, CancellingUnallottedOrdersClosesTheOpenOnesOfTheIssue) {
  SimFixture f;
  f.subscribeListeners();
  EXPECT_EQ(describe(f, f.ask("om_delete_unalloted_ofs_issue", fieldsOf("63001=nse_ipo 3=N1")),
                     {32766, 64001, 64655}),
            (Lines{"reply asker om_delete_unalloted_ofs_issue 32766=",
                   "live listener om_delete_unalloted_ofs_issue 64001=501 64655=cancelled",
                   "live listener om_delete_unalloted_ofs_issue 64001=502 64655=cancelled",
                   "live listener om_delete_unalloted_ofs_issue 64001=503 64655=cancelled",
                   "live listener om_delete_unalloted_ofs_issue 64001=506 64655=cancelled"}));
  EXPECT_EQ(
      describe(f, f.ask("om_delete_unalloted_ofs_issue", fieldsOf("63001=bse_ipo 3=N1")), {32766}),
      (Lines{"reply asker om_delete_unalloted_ofs_issue 32766=E200 32766=Issue N1 is not "
             "known"}));
}

TEST(IssueAdministration, AllotmentCompletesTheOrderItNamesWithWhatWasAllotted) {
  SimFixture f;
  f.subscribeListeners();
  const FieldList byNumber = fieldsOf(
      "63001=bse_ipo 3=XYZ 49238=1000000505 54001=A2 12004=4 10306=40000 10308=4 "
      "10307=39950 20001=fill 12003=B");
  EXPECT_EQ(describe(f, f.ask("om_ofs_allotment", byNumber), {32766, 64001, 10308, 10307, 64655}),
            (Lines{"reply asker om_ofs_allotment 32766=",
                   "live bse om_ofs_allotment 64001=505 10308=4 10307=39950 64655=complete"}));
  // The book asked for later shows the allotment too; the other orders carry none.
  EXPECT_EQ(
      describe(f, f.ask("om_order_report_ofs", fieldsOf("63059=C 63001=bse_ipo 31003=U1")),
               {64001, 10308, 10307}),
      (Lines{"reply asker om_order_report_ofs 64001=505 10308=4 10307=39950",
             "reply asker om_order_report_ofs 64001=507", "reply asker om_order_report_ofs"}));
  // Again: the order is no longer open, so nothing more happens.
  EXPECT_EQ(describe(f, f.ask("om_ofs_allotment", byNumber), {32766}),
            (Lines{"reply asker om_ofs_allotment 32766="}));
}

}  // namespace
}  // namespace simtest
