// screen_pictures DIR: opens every screen of the plug-in with rows in it, at a regular and a
// large font, and writes each as DIR/<screen>-<variation>.png for people to look at. It fails
// when a picture is not a real drawing: too small or too large, or nearly one colour.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QMessageBox>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "tests/support/fake_host.h"
#include "tests/support/field_text.h"
#include "tests/support/message_fixtures.h"
#include "tests/support/scratch_dir.h"
#include "ui/basket_dialog.h"
#include "ui/bulk_upload_dialog.h"
#include "ui/issue_details_dialog.h"
#include "ui/market_depth_dialog.h"
#include "ui/modify_price_dialog.h"
#include "ui/ofs_frame.h"
#include "ui/order_book_widget.h"
#include "ui/order_entry_dialog.h"
#include "ui/order_history_dialog.h"
#include "ui/scrip_properties_dialog.h"
#include "ui/watch_view_widget.h"

namespace {

int failures = 0;

void settle() {
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
}

// Not blank, not one flat colour, of a size a screen can have.
std::string whatIsWrong(const QImage& image) {
  if (image.width() < 200 || image.height() < 100) return "smaller than 200x100";
  if (image.width() > 3000 || image.height() > 2500) return "larger than 3000x2500";
  QHash<QRgb, int> counts;
  for (int y = 0; y < image.height(); y += 2)
    for (int x = 0; x < image.width(); x += 2) ++counts[image.pixel(x, y)];
  if (counts.size() < 8) return "fewer than 8 colours";
  const int all = (image.width() + 1) / 2 * ((image.height() + 1) / 2);
  if (*std::max_element(counts.begin(), counts.end()) > all * 98 / 100) return "98% one colour";
  return {};
}

void shoot(QWidget* screen, const QString& dir, const QString& name, const QString& variation) {
  const QString path = dir + "/" + name + "-" + variation + ".png";
  QImage image;
  if (screen) {
    screen->show();
    screen->raise();
    settle();
    image = screen->grab().toImage();
    if (screen->isWindow() && screen->parentWidget()) screen->hide();
    image.save(path);
  }
  const std::string wrong = screen ? whatIsWrong(image) : "the screen did not open";
  std::printf("%s %dx%d%s%s\n", qPrintable(path), image.width(), image.height(),
              wrong.empty() ? "" : ": ", wrong.c_str());
  if (!wrong.empty()) ++failures;
}

void deliver(bool live, const std::string& fields) {
  const auto message = makeMessage(fieldsOf(fields));
  live ? controlBlock()->OnLiveUpdate(message.get()) : controlBlock()->OnResponse(message.get());
}

// Today is 21/11/2026: two current issues, one forthcoming, one past.
void fillBook() {
  const char* issues[] = {
      "63032=101 3=ABC 10610=RS 10100=ABC-RS 49165=19/11/2026 79=24/11/2026 63022=100.00 49033=ABC "
      "Industries Ltd",
      "63032=102 3=ABC 10610=IS 10100=ABC-IS 49165=21/11/2026 79=21/11/2026 63022=100.00 49033=ABC "
      "Industries Ltd",
      "63032=201 3=PQR 10610=RS 10100=PQR-RS 49165=25/11/2026 79=27/11/2026 63022=75.00 49033=PQR "
      "Foods Ltd",
      "63032=301 3=DEF 10610=RS 10100=DEF-RS 49165=10/11/2026 79=12/11/2026 63022=40.00 49033=DEF "
      "Metals Ltd"};
  for (const char* issue : issues)
    deliver(false, std::string("32767=om_get_ofs_issues 63001=nse_ipo ") + issue +
                       " 54079=110.00 55=10 10062=5000000 10027=5 63005=0.05 63059=Y 63023=120.00 "
                       "54803=105.50 54571=Y 61362=Y 54009=200000");
  deliver(false, "32767=om_get_ofs_issues 32766=");
  const char* orders[] = {
      "64001=1001 54001=A1 12004=50 10306=10150 12008=L 64655=cancelled",
      "64001=1002 54001=A1 12004=100 10306=10200 12008=L 64655=open",
      "64001=1003 54001=A2 12004=20 10306=MKT 12008=MKT 64655=open",
      "64001=1004 54001=A2 12004=30 10306=10400 12008=L 64655=open pending",
      "64001=1005 54001=A1 12004=15 10306=10050 12008=L 64655=rejected",
      "64001=1006 54001=A2 12004=40 10306=10250 12008=L 64655=open 10355=Inactive",
      "64001=1007 54001=A1 12004=25 10306=10325 12008=L 64655=complete",
      "64001=1008 54001=A2 12004=1200 10306=10100 12008=L 64655=open"};
  for (const char* order : orders)
    deliver(true, std::string(order) + " 63100=101 63001=nse_ipo 10100=ABC-RS 54056=C 31003=U1");
}

// A menu command or a button by the start of its text, or null.
template <typename T>
T* named(const QList<T*>& all, const QString& text) {
  for (T* one : all)
    if (one->text().remove('&').startsWith(text)) return one;
  return nullptr;
}

void drawEverything(const QString& dir, const QString& variation, FakeHost& host,
                    const QString& samples) {
  COFSFrame frame(*controlBlock());
  frame.resize(1500, 800);
  frame.show();
  fillBook();
  settle();
  WatchViewWidget* watch = frame.watchView();
  auto* tabs = watch->findChild<QTabWidget*>();
  for (int tab = 0; tab < 3; ++tab)
    tabs->setCurrentIndex(tab),
        shoot(&frame, dir, "watch-" + tabs->tabText(tab).section(" ", 0, 0).toLower(), variation);
  tabs->setCurrentIndex(0);
  watch->selectRows("current", {"101"});

  watch->runCommand(4);
  shoot(watch->findChild<OrderEntryDialog*>(), dir, "order-entry", variation);
  watch->runCommand(7);
  shoot(watch->findChild<ScripPropertiesDialog*>(), dir, "scrip-properties", variation);
  watch->runCommand(8);
  shoot(watch->findChild<MarketDepthDialog*>(), dir, "market-depth", variation);
  watch->runCommand(10);
  shoot(watch->findChild<IssueDetailsDialog*>(), dir, "issue-dialog", variation);

  watch->runCommand(6);
  auto* basket = watch->findChild<BasketDialog*>();
  if (basket) {
    host.promptLog.queueFile((samples + "/basket_sample.csv").toStdString());
    if (QAbstractButton* browse = named(basket->findChildren<QAbstractButton*>(), "Browse"))
      browse->click();
  }
  shoot(basket, dir, "basket", variation);

  watch->selectRows("current", {"102"});  // the sample bid file's issue
  watch->runCommand(9);
  auto* bulk = watch->findChild<BulkUploadDialog*>();
  if (bulk) {
    for (QComboBox* kinds : bulk->findChildren<QComboBox*>()) {
      const int neat = kinds->findText("Bids file(NEAT Format)");
      if (neat < 0) continue;
      kinds->setCurrentIndex(neat);
      emit kinds->activated(neat);
    }
    host.promptLog.queueFile((samples + "/bulk_neat_sample.csv").toStdString());
    if (QAbstractButton* browse = named(bulk->findChildren<QAbstractButton*>(), "Browse"))
      browse->click();
  }
  shoot(bulk, dir, "bulk-upload", variation);

  frame.showOrderBook();
  settle();
  OrderBookWidget* book = frame.orderBook();
  shoot(&frame, dir, "order-book", variation);
  auto* open = book->findChild<QTableView*>("open");
  open->setFocus();
  open->selectRow(0);
  // 1008 and 1002: open limit orders of one issue.
  open->selectionModel()->select(open->model()->index(4, 0),
                                 QItemSelectionModel::Select | QItemSelectionModel::Rows);
  if (QAction* bulkModify = named(book->actions(), "Bulk Modify Order")) bulkModify->trigger();
  settle();
  shoot(book->findChild<ModifyPriceDialog*>(), dir, "modify-price", variation);

  open->selectRow(0);
  if (QAction* history = named(book->actions(), "OFS Order History")) history->trigger();
  settle();
  for (const char* status : {"open pending", "open", "modified"}) {
    auto row = std::make_unique<sOFSOrderInfo>();
    row->status = status;
    row->price = "10200";
    row->quantity = "100";
    row->timeText = "21Nov2026 09:15:00";
    if (controlBlock()->onHistoryRow) controlBlock()->onHistoryRow(std::move(row));
  }
  if (controlBlock()->onHistoryEnd) controlBlock()->onHistoryEnd();
  shoot(book->findChild<OrderHistoryDialog*>(), dir, "order-history", variation);

  frame.watchView()->destroyDialogs();
  frame.orderBook()->destroyDialogs();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: screen_pictures DIR\n");
    return 2;
  }
  const ScratchDir scratch;
  setenv("XDG_CONFIG_HOME", scratch.path().c_str(), 1);
  setenv("XDG_DATA_HOME", scratch.path().c_str(), 1);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  const QString dir = QString::fromLocal8Bit(argv[1]);
  QDir().mkpath(dir);
  const QString samples = QStringLiteral(OFS_SAMPLES_DIR);

  // A message box would wait for a click nobody gives: say what it said and close it.
  QTimer boxCloser;
  QObject::connect(&boxCloser, &QTimer::timeout, [] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      std::printf("message box: %s\n", qPrintable(box->text()));
      box->done(QMessageBox::Ok);
    }
  });
  boxCloser.start(50);

  const QFont regular = QApplication::font();
  for (const auto& [variation, scale] : {std::pair{"regular", 1.0}, std::pair{"large", 1.4}}) {
    QFont font = regular;
    font.setPointSizeF(regular.pointSizeF() * scale);
    QApplication::setFont(font);
    FakeHost host;
    host.clock = localTime(21, 11, 2026, 36000);
    host.state.userDirectory = scratch.path();
    host.state.rights.insert("VT: Add OFS Issue");
    host.state.accounts = {"A1", "A2", "PC1"};
    host.state.pcodes = {{"A1", "PC1"}, {"PC1", "PC1"}};
    host.state.peer1 = "TM1";
    initPlugin(host, host.app(), "U1", 3);
    drawEverything(dir, variation, host, samples);
    exitPlugin(host);
  }
  std::printf("%d picture(s) failed\n", failures);
  return failures == 0 ? 0 : 1;
}
