#include <gtest/gtest.h>
#include <stdlib.h>

#include <QHeaderView>
#include <QTabWidget>
#include <QTableView>

#include "issues/watch_view.h"
#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "tests/support/fake_host.h"
#include "ui/ofs_frame.h"
#include "ui/watch_view_widget.h"

namespace {

class WatchFrame : public testing::Test {
 protected:
  WatchFrame() {
    host.clock = localTime(21, 11, 2026, 36000);
    host.state.userDirectory = getenv("XDG_DATA_HOME");
    initPlugin(host, host.app(), "U1", 3);
    frame = std::make_unique<COFSFrame>(*controlBlock());
    frame->show();
  }
  ~WatchFrame() override {
    frame.reset();
    exitPlugin(host);
  }
  QTableView* list(const char* name) { return frame->findChild<QTableView*>(name); }

  FakeHost host;
  std::unique_ptr<COFSFrame> frame;
};

TEST_F(WatchFrame, ShowsThreeTabsWithTheSameSeventeenColumns) {
  auto* tabs = frame->findChild<QTabWidget*>();
  ASSERT_NE(tabs, nullptr);
  ASSERT_EQ(tabs->count(), 3);
  EXPECT_EQ(tabs->tabText(0), "Current Issues");
  EXPECT_EQ(tabs->tabText(1), "Forthcoming Issues");
  EXPECT_EQ(tabs->tabText(2), "Past Issues");
  for (const char* name : {"current", "forthcoming", "past"}) {
    QTableView* table = list(name);
    ASSERT_NE(table, nullptr) << name;
    QStringList headers;
    for (int c = 0; c < table->model()->columnCount(); ++c)
      headers << table->model()->headerData(c, Qt::Horizontal).toString();
    EXPECT_EQ(headers, (QStringList{"OFS ID", "Open Date", "Close Date", "Issue Size", "Tick Size",
                                    "Floor Price", "RMS Price", "Symbol", "Series", "Exchange",
                                    "CutOff", "Minimun Quantity", "Lot Size", "Company Name",
                                    "Ceiling Price", "Indicative Price", "Underlying LTP"}))
        << name;
  }
  EXPECT_EQ(frame->watchView()->windowTitle(), "Current Issue List");
}

TEST_F(WatchFrame, AnIssueFromTheCoreAppearsOnTopOfItsTab) {
  sOFSCol first;
  first.issueId = "I1";
  first.field49165 = "01/11/2026";
  first.field79 = "30/11/2026";
  sOFSCol second = first;
  second.issueId = "I2";
  CWatchView& core = frame->watchView()->core();
  core.addIssue(&first);
  core.addIssue(&second);
  QTableView* current = list("current");
  ASSERT_EQ(current->model()->rowCount(), 2);
  EXPECT_EQ(current->model()->index(0, 0).data().toString(), "I2");
  EXPECT_EQ(current->model()->index(1, 0).data().toString(), "I1");
  EXPECT_EQ(list("past")->model()->rowCount(), 0);

  ASSERT_TRUE(frame->watchView()->selectRows("current", {"I1"}));
  EXPECT_EQ(core.selectedIssue(), &first);
  EXPECT_FALSE(frame->watchView()->selectRows("elsewhere", {"I1"}));
}

}  // namespace
