#include <gtest/gtest.h>
#include <stdlib.h>

#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QSettings>
#include <QTableView>

#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "plugin/settings_paths.h"
#include "tests/support/fake_host.h"
#include "tests/support/message_fixtures.h"
#include "ui/list_memory.h"
#include "ui/ofs_frame.h"
#include "ui/order_book_widget.h"
#include "ui/watch_view_widget.h"

namespace {

void settle() {
  for (int i = 0; i < 3; ++i) QApplication::processEvents();
}

class Lists : public testing::Test {
 protected:
  Lists() {
    // Each test starts with nothing remembered: no layout, no list widths.
    QSettings(kLayoutOrganisation, kLayoutApplication).clear();
    QFile::remove(listFile);
    setListRecoveryFiles(listFile, {});
    host.clock = localTime(21, 11, 2026, 36000);
    host.state.userDirectory = getenv("XDG_DATA_HOME");
    initPlugin(host, host.app(), "U1", 3);
    openFrame();
  }
  ~Lists() override {
    frame.reset();
    exitPlugin(host);
    setListRecoveryFiles({}, {});
    QFile::remove(listFile);
  }
  void openFrame() {
    frame = std::make_unique<COFSFrame>(*controlBlock());
    frame->resize(1200, 700);
    frame->show();
    frame->showOrderBook();
    settle();
  }
  void order(const char* number, const char* client, const char* quantity, const char* paise,
             const char* status, const char* cfStatus = "Active") {
    const bool market = std::string(paise) == "MKT";
    controlBlock()->OnLiveUpdate(makeMessage({{64001, number},
                                              {63100, "101"},
                                              {54001, client},
                                              {12004, quantity},
                                              {10306, paise},
                                              {12008, market ? "MKT" : "L"},
                                              {64655, status},
                                              {63001, "nse_ipo"},
                                              {10100, "ABC-RS"},
                                              {10355, cfStatus}})
                                     .get());
    settle();
  }
  QTableView* list(const char* name) { return frame->findChild<QTableView*>(name); }
  QString totals(const char* name) {
    return frame->findChild<QLabel*>(QString(name) + "Totals")->text();
  }

  const QString listFile = QString(getenv("XDG_DATA_HOME")) + "/UserSetting.ini";
  FakeHost host;
  std::unique_ptr<COFSFrame> frame;
};

TEST_F(Lists, OrderLinesAlignNumbersRightTintByStatusAndDimFrozenOrders) {
  order("1", "A1", "10", "10150", "open");
  order("2", "A1", "10", "10150", "open pending");
  order("3", "A1", "10", "10150", "open", "Inactive");
  order("4", "A1", "10", "10150", "rejected");
  order("5", "A1", "10", "10150", "cancelled");
  order("6", "A1", "10", "10150", "complete");
  const QAbstractItemModel* open = list("open")->model();
  const QAbstractItemModel* done = list("completed")->model();
  ASSERT_EQ(open->rowCount(), 3);
  ASSERT_EQ(done->rowCount(), 3);

  const struct {
    const char* column;
    int index;
    bool right;
  } columns[] = {{"OFS Order Number", 0, true}, {"Issue ID", 2, false},
                 {"Quantity", 3, true},         {"Price", 4, true},
                 {"Status", 5, false},          {"Client Id", 9, false},
                 {"Allotted Price", 20, true}};
  for (const auto& c : columns) {
    ASSERT_EQ(open->headerData(c.index, Qt::Horizontal).toString(), c.column);
    const auto cell = open->index(0, c.index).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    const auto head =
        open->headerData(c.index, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>();
    EXPECT_EQ(bool(cell & Qt::AlignRight), c.right) << c.column;
    EXPECT_EQ(head, cell) << c.column;
  }

  // Newest on top: open 3, 2, 1; completed 6, 5, 4.
  QSet<QRgb> tints;
  for (const QAbstractItemModel* model : {open, done})
    for (int row = 0; row < 3; ++row)
      tints << model->index(row, 5).data(Qt::BackgroundRole).value<QColor>().rgb();
  EXPECT_EQ(tints.size(), 5) << "open, open pending, rejected, cancelled, complete";
  EXPECT_EQ(open->index(0, 1).data(Qt::BackgroundRole), open->index(2, 1).data(Qt::BackgroundRole));

  EXPECT_TRUE(open->index(0, 0).data(Qt::ForegroundRole).isValid()) << "inactive carry-forward";
  EXPECT_FALSE(open->index(2, 0).data(Qt::ForegroundRole).isValid());
}

TEST_F(Lists, TotalsFollowLiveUpdatesAndTheActiveClient) {
  EXPECT_EQ(totals("open"), "Orders: 0   Quantity: 0   Amount: Rs 0.00");
  order("1", "A1", "100", "10200", "open");
  order("2", "A2", "20", "MKT", "open");
  EXPECT_EQ(totals("open"),
            "Orders: 2   Quantity: 120   Amount: Rs 10,200.00   (1 MKT order not in amount)");
  order("1", "A1", "100", "10200", "cancelled");
  EXPECT_EQ(totals("open"),
            "Orders: 1   Quantity: 20   Amount: Rs 0.00   (1 MKT order not in amount)");
  EXPECT_EQ(totals("completed"), "Orders: 1   Quantity: 100   Amount: Rs 10,200.00");
  order("3", "A1", "5", "10000", "open");
  frame->orderBook()->filterToClient("A1");
  settle();
  EXPECT_EQ(totals("open"), "Orders: 1   Quantity: 5   Amount: Rs 500.00");
}

TEST_F(Lists, ColumnsFitTheirTextUntilTheUserSetsWidthsThatAreThenRemembered) {
  sOFSCol issue;
  issue.issueId = "I1";
  issue.field49165 = "01/11/2026";
  issue.field79 = "30/11/2026";
  frame->watchView()->core().addIssue(&issue);
  settle();
  QTableView* current = list("current");
  const QFontMetrics metrics(current->font());
  EXPECT_GT(current->columnWidth(2), metrics.horizontalAdvance("30/11/2026")) << "Close Date";
  EXPECT_GT(current->columnWidth(2), metrics.horizontalAdvance("Close Date"));
  EXPECT_LT(current->columnWidth(0), 100) << "OFS ID is narrow";

  current->horizontalHeader()->resizeSection(2, 177);
  frame->watchView()->core().addIssue(&issue);
  settle();
  EXPECT_EQ(current->columnWidth(2), 177) << "no fitting once the user chose";
  frame.reset();
  openFrame();
  frame->watchView()->core().addIssue(&issue);
  settle();
  EXPECT_EQ(list("current")->columnWidth(2), 177);
}

TEST_F(Lists, TheFrameFillsTheDocumentAreaFirstThenOpensWhereItWasLeft) {
  QMdiArea area;
  area.resize(900, 600);
  area.show();
  auto placed = [&] {
    frame.reset();
    frame = std::make_unique<COFSFrame>(*controlBlock());
    QMdiSubWindow* window = area.addSubWindow(frame.get());
    frame->showIn(window);
    settle();
    return window;
  };
  QMdiSubWindow* first = placed();
  EXPECT_TRUE(first->isMaximized());
  first->showNormal();
  first->setGeometry(20, 30, 500, 300);
  frame->saveLayout();
  QMdiSubWindow* second = placed();
  EXPECT_FALSE(second->isMaximized());
  EXPECT_EQ(second->geometry(), QRect(20, 30, 500, 300));
  frame.reset();
}

}  // namespace
