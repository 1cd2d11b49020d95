#include <gtest/gtest.h>
#include <stdlib.h>

#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QSettings>
#include <QTabWidget>
#include <QTableView>

#include "issues/watch_view.h"
#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "plugin/settings_paths.h"
#include "tests/support/fake_host.h"
#include "tests/support/field_text.h"
#include "tests/support/message_fixtures.h"
#include "ui/list_memory.h"
#include "ui/ofs_frame.h"
#include "ui/order_book_widget.h"
#include "ui/order_history_dialog.h"
#include "ui/order_number_dialog.h"
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
  // "64001=1 54001=A1 12004=10 10306=10150 64655=open" and the fields every order shares.
  void order(const std::string& fields) {
    const auto message =
        makeMessage(fieldsOf(fields + " 63100=101 63001=nse_ipo 10100=ABC-RS 54056=C 31003=U1"));
    controlBlock()->OnLiveUpdate(message.get());
    settle();
  }
  QTableView* list(const char* name) { return frame->findChild<QTableView*>(name); }
  void add(sOFSCol& issue) {
    frame->watchView()->core().addIssue(&issue);
    settle();
  }
  static sOFSCol issue(const char* id) {
    sOFSCol made;
    made.issueId = id;
    made.field49165 = "01/11/2026";
    made.field79 = "30/11/2026";
    return made;
  }
  QString totals(const char* name) {
    return frame->findChild<QLabel*>(QString(name) + "Totals")->text();
  }

  const QString listFile = QString(getenv("XDG_DATA_HOME")) + "/UserSetting.ini";
  FakeHost host;
  std::unique_ptr<COFSFrame> frame;
};

TEST_F(Lists, TheWatchShowsThreeTabsWithTheSameSeventeenColumnsAndNewIssuesOnTop) {
  auto* tabs = frame->watchView()->findChild<QTabWidget*>();
  ASSERT_EQ(tabs->count(), 3);
  EXPECT_EQ(tabs->tabText(0) + tabs->tabText(1) + tabs->tabText(2),
            "Current IssuesForthcoming IssuesPast Issues");
  for (const char* name : {"current", "forthcoming", "past"}) {
    QStringList headers;
    for (int c = 0; c < list(name)->model()->columnCount(); ++c)
      headers << list(name)->model()->headerData(c, Qt::Horizontal).toString();
    EXPECT_EQ(headers, (QStringList{"OFS ID", "Open Date", "Close Date", "Issue Size", "Tick Size",
                                    "Floor Price", "RMS Price", "Symbol", "Series", "Exchange",
                                    "CutOff", "Minimun Quantity", "Lot Size", "Company Name",
                                    "Ceiling Price", "Indicative Price", "Underlying LTP"}))
        << name;
  }
  EXPECT_EQ(frame->watchView()->windowTitle(), "Current Issue List");

  sOFSCol first = issue("I1"), second = issue("I2");
  CWatchView& core = frame->watchView()->core();
  core.addIssue(&first);
  core.addIssue(&second);
  const QAbstractItemModel* current = list("current")->model();
  ASSERT_EQ(current->rowCount(), 2);
  EXPECT_EQ(current->index(0, 0).data().toString() + current->index(1, 0).data().toString(),
            "I2I1");
  EXPECT_EQ(list("past")->model()->rowCount(), 0);
  ASSERT_TRUE(frame->watchView()->selectRows("current", {"I1"}));
  EXPECT_EQ(core.selectedIssue(), &first);
  EXPECT_FALSE(frame->watchView()->selectRows("elsewhere", {"I1"}));
}

TEST_F(Lists, OrderLinesAlignNumbersRightTintByStatusAndDimFrozenOrders) {
  // One order through every status: each leaves a tint of its own on the line.
  QSet<QRgb> tints;
  for (const char* status : {"open", "open pending", "rejected", "cancelled", "complete"}) {
    order(std::string("64001=1 54001=A1 12004=10 10306=10150 64655=") + status);
    const QAbstractItemModel* shown = list(*status == 'o' ? "open" : "completed")->model();
    tints << shown->index(0, 5).data(Qt::BackgroundRole).value<QColor>().rgb();
  }
  EXPECT_EQ(tints.size(), 5);

  order("64001=2 54001=A1 12004=10 10306=10150 64655=open 10355=Inactive");
  order("64001=3 54001=A1 12004=10 10306=10150 64655=open");
  const QAbstractItemModel* open = list("open")->model();
  EXPECT_TRUE(open->index(1, 0).data(Qt::ForegroundRole).isValid()) << "inactive carry-forward";
  EXPECT_FALSE(open->index(0, 0).data(Qt::ForegroundRole).isValid());
  // OFS Order Number, Issue ID, Quantity, Price, Status, Allotted Price.
  for (const auto& [column, right] :
       {std::pair{0, true}, {2, false}, {3, true}, {4, true}, {5, false}, {20, true}}) {
    const QVariant cell = open->index(0, column).data(Qt::TextAlignmentRole);
    EXPECT_EQ(bool(cell.value<Qt::Alignment>() & Qt::AlignRight), right) << column;
    EXPECT_EQ(open->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole), cell) << column;
  }
}

TEST_F(Lists, TotalsFollowLiveUpdatesAndTheActiveClient) {
  EXPECT_EQ(totals("open"), "Orders: 0   Quantity: 0   Amount: Rs 0.00");
  order("64001=1 54001=A1 12004=100 10306=10200 64655=open");
  order("64001=2 54001=A2 12004=20 10306=MKT 12008=MKT 64655=open");
  EXPECT_EQ(totals("open"),
            "Orders: 2   Quantity: 120   Amount: Rs 10,200.00   (1 MKT order not in amount)");
  order("64001=1 54001=A1 12004=100 10306=10200 64655=cancelled");
  EXPECT_EQ(totals("open"),
            "Orders: 1   Quantity: 20   Amount: Rs 0.00   (1 MKT order not in amount)");
  EXPECT_EQ(totals("completed"), "Orders: 1   Quantity: 100   Amount: Rs 10,200.00");
  order("64001=3 54001=A1 12004=5 10306=10000 64655=open");
  frame->orderBook()->filterToClient("A1");
  settle();
  EXPECT_EQ(totals("open"), "Orders: 1   Quantity: 5   Amount: Rs 500.00");
}

TEST_F(Lists, ColumnsFitTheirTextUntilTheUserSetsWidthsThatAreThenRemembered) {
  sOFSCol one = issue("I1");
  add(one);
  QTableView* current = list("current");
  const QFontMetrics metrics(current->font());
  EXPECT_GT(current->columnWidth(2), metrics.horizontalAdvance("30/11/2026")) << "Close Date";
  EXPECT_GT(current->columnWidth(2), metrics.horizontalAdvance("Close Date"));
  EXPECT_LT(current->columnWidth(0), 100) << "OFS ID is narrow";

  current->horizontalHeader()->resizeSection(2, 177);
  add(one);
  EXPECT_EQ(current->columnWidth(2), 177) << "no fitting once the user chose";
  frame.reset();
  openFrame();
  add(one);
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

TEST_F(Lists, TheNumberPromptOpensAHistoryThatTakesAHundredThousandLines) {
  {
    OrderHistoryDialog window(*controlBlock());
    OrderNumberDialog prompt(window);
    prompt.findChild<QLineEdit*>()->setText("1001");
    prompt.accept();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.property("heading").toString(), "Order History for Order No.:1001");

    constexpr int kLines = 100000;
    for (int i = 0; i < kLines; ++i) {
      auto row = std::make_unique<sOFSOrderInfo>();
      row->status = "open";
      row->field49238 = std::to_string(i);
      controlBlock()->onHistoryRow(std::move(row));
    }
    controlBlock()->onHistoryEnd();
    const QAbstractItemModel* lines = window.findChild<QTableView*>("history")->model();
    EXPECT_EQ(lines->rowCount(), kLines);
    EXPECT_EQ(lines->index(kLines - 1, 3).data().toString(), "open");
    QStringList details;
    for (QLabel* label : window.findChildren<QLabel*>())
      if (auto* value = qobject_cast<QLabel*>(label->buddy()))
        details << label->text() + value->text();
    EXPECT_EQ(details.size(), 9);
    EXPECT_TRUE(details.contains("ExchangeOrderNo:99999")) << details.join("|").toStdString();
  }
  EXPECT_FALSE(controlBlock()->onHistoryRow);
}

}  // namespace
