#include <gtest/gtest.h>

#include <ostream>
#include <tuple>

#include "domain/issue_date.h"
#include "issues/watch_columns.h"
#include "issues/watch_view.h"
#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "tests/support/fake_host.h"

namespace {

class WatchViewTest : public testing::Test {
 protected:
  WatchViewTest() {
    host.clock = localTime(21, 11, 2026, 10 * 3600);
    initPlugin(host, host.app(), "U1", 3);
    host.state.events.clear();
  }
  ~WatchViewTest() override { exitPlugin(host); }

  CWatchView& view() { return *host.view; }
  sOFSCol* issue(const std::string& id, const std::string& open, const std::string& close) {
    auto col = std::make_unique<sOFSCol>();
    col->issueId = id;
    col->field49165 = open;
    col->field79 = close;
    issues.push_back(std::move(col));
    return issues.back().get();
  }
  std::vector<std::string> ids(WatchTab tab) {
    std::vector<std::string> out;
    for (const sOFSCol* c : view().rows(tab)) out.push_back(c->issueId);
    return out;
  }

  FakeHost host;
  std::vector<std::unique_ptr<sOFSCol>> issues;
};

// Today is 21/11/2026: (open, close) and the tab they choose.
TEST_F(WatchViewTest, DatesChooseTheTab) {
  const std::vector<std::tuple<const char*, const char*, WatchTab>> dates{
      {"21/11/2026", "21/11/2026", WatchTab::Current},
      {"19/11/2026", "20/11/2026", WatchTab::Past},
      {"22/11/2026", "01/11/2026", WatchTab::Forthcoming},  // opens tomorrow, closes earlier
      {"20-Nov-2026", "25-Nov-2026", WatchTab::Current},
      {"23Nov2026", "25Nov2026", WatchTab::Forthcoming},
      {"01/Jan/2027", "05/Jan/2027", WatchTab::Forthcoming},
      {"31/04/2027", "30/11/2026", WatchTab::Current},  // a refused open date: never forthcoming
      {"01/11/2026", "29/02/2027", WatchTab::Past},     // a refused close date: past
      {"01/11/2026", "30-NOV-2026", WatchTab::Past}};   // an upper-case month is no month
  size_t current = 0;
  for (const auto& [open, close, tab] : dates) {
    view().addIssue(issue(open, open, close));
    EXPECT_EQ(ids(tab).front(), open) << open << " " << close;
    if (tab == WatchTab::Current) ++current;
  }
  EXPECT_EQ(view().currentIssueIds().size(), current);
}

TEST(IssueDate, RefusesDaysTheMonthDoesNotHave) {
  for (const char* valid : {"29/02/2024", "29/02/2000", "30/06/2026", "31/12/2026"})
    EXPECT_NE(parseIssueDate(valid), -1) << valid;
  for (const char* refused : {"29/02/2025", "29/02/1900", "31/06/2026", "32/12/2026", "10/13/2026",
                              "", "abc", "10-Foo-2026"})
    EXPECT_EQ(parseIssueDate(refused), -1) << refused;
}

TEST_F(WatchViewTest, NewestIssueStandsOnTopAndTheSelectionFollowsItsRow) {
  view().addIssue(issue("I1", "01/11/2026", "30/11/2026"));
  view().setSelection(WatchTab::Current, {0});
  view().addIssue(issue("I2", "01/11/2026", "30/11/2026"));
  EXPECT_EQ(ids(WatchTab::Current), (std::vector<std::string>{"I2", "I1"}));
  EXPECT_EQ(view().currentIssueIds(), (std::vector<std::string>{"I1", "I2"}));
  EXPECT_EQ(view().selectedIssue()->issueId, "I1");
}

TEST(WatchColumns, TextsOfAFilledIssue) {
  sOFSCol col;
  col.issueId = "I1";
  col.issueSize = 1234567.5;
  col.field61002 = "extra";
  EXPECT_EQ(watchColumnText(&col, 0), "I1");
  EXPECT_EQ(watchColumnText(&col, 3), "1234568");
  EXPECT_EQ(watchColumnText(&col, 17), "extra");
  EXPECT_EQ(watchColumnText(&col, 16, "as passed"), "as passed");
  EXPECT_EQ(watchColumnText(nullptr, 0), "");
}

Lines menuTexts(const std::vector<MenuEntry>& menu) {
  Lines out;
  for (const MenuEntry& e : menu) {
    if (e.isSeparator()) {
      out.push_back("-");
    } else if (!e.items.empty()) {
      out.push_back(e.text + " >");
      for (const MenuEntry& sub : e.items)
        out.push_back("  " + std::to_string(sub.command) + " " + sub.text);
    } else {
      out.push_back(std::to_string(e.command) + " " + e.text);
    }
  }
  return out;
}

TEST_F(WatchViewTest, MenusWithoutTheRightEndAfterMarketDepth) {
  EXPECT_EQ(menuTexts(view().contextMenu(WatchTab::Current)),
            (Lines{"7 Scrip Properties\tShift+F7", "6 Basket Order\tCtrl+B", "9 Bulk Upload", "-",
                   "4 Order Entry\tF1", "5 Order Book\tF3", "-", "8 Market Depth\tF6", "-"}));
  EXPECT_TRUE(view().contextMenu(WatchTab::Forthcoming).empty());
  EXPECT_TRUE(view().contextMenu(WatchTab::Past).empty());
}

TEST_F(WatchViewTest, MenusWithTheRightOfferAdministration) {
  host.state.rights.insert("VT: Add OFS Issue");
  Lines current = menuTexts(view().contextMenu(WatchTab::Current));
  EXPECT_EQ(Lines(current.begin() + 9, current.end()),
            (Lines{"11 Add OFS Issue\tCtrl+A", "10 Modify OFS Issue\tCtrl+M", "30 Upload OFS Issue",
                   "24 Export All OFS Issues", "-", "OFS Allotment Upload >", "  20 NSE",
                   "  21 BSE", "22 Cancel UnAlloted Orders for this Issue", "-"}));
  EXPECT_EQ(menuTexts(view().contextMenu(WatchTab::Forthcoming)),
            (Lines{"10 Modify OFS Issue\tCtrl+M", "-"}));
  EXPECT_EQ(menuTexts(view().contextMenu(WatchTab::Past)),
            (Lines{"22 Cancel UnAlloted Orders for this Issue", "-"}));
}

TEST_F(WatchViewTest, AddAndModifyIssueNeedTheRightThenModifyASelectedRow) {
  view().runCommand(11);
  view().runHotkey(1600);
  host.state.rights.insert("VT: Add OFS Issue");
  view().runCommand(10);
  EXPECT_EQ(host.promptLog.messages(), (Lines{"Add/Modify OFS Issue details has not been enabled",
                                              "Add/Modify OFS Issue details has not been enabled",
                                              "Please select scrip for modification"}));
}

}  // namespace
