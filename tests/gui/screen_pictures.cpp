// screen_pictures DIR: opens every screen of the plug-in with rows in it, at a regular and a
// large font, and writes each as DIR/<screen>-<variation>.png for people to look at. It fails
// when a picture is not a real drawing: too small or too large, or nearly one colour.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QImage>
#include <QMessageBox>
#include <QSet>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "tests/support/fake_host.h"
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
  int most = 0;
  int all = 0;
  for (int n : counts) {
    most = std::max(most, n);
    all += n;
  }
  if (most > all * 98 / 100) return "98% one colour";
  return {};
}

void shoot(QWidget* screen, const QString& dir, const QString& name, const QString& variation) {
  if (!screen) {
    std::fprintf(stderr, "%s-%s: the screen did not open\n", qPrintable(name),
                 qPrintable(variation));
    ++failures;
    return;
  }
  screen->show();
  screen->raise();
  settle();
  const QImage image = screen->grab().toImage();
  const QString path = dir + "/" + name + "-" + variation + ".png";
  image.save(path);
  const std::string wrong = whatIsWrong(image);
  std::printf("%s %dx%d%s%s\n", qPrintable(path), image.width(), image.height(),
              wrong.empty() ? "" : ": ", wrong.c_str());
  if (!wrong.empty()) ++failures;
}

void reply(const FieldList& fields) {
  controlBlock()->OnResponse(makeMessage(fields).get());
}

void update(const FieldList& fields) {
  controlBlock()->OnLiveUpdate(makeMessage(fields).get());
}

void issue(const char* id, const char* exchange, const char* symbol, const char* series,
           const char* open, const char* close, const char* floor, const char* name) {
  reply({{32767, "om_get_ofs_issues"},
         {63032, id},
         {63001, exchange},
         {3, symbol},
         {10610, series},
         {10100, std::string(symbol) + "-" + series},
         {49165, open},
         {79, close},
         {63022, floor},
         {54079, "110.00"},
         {55, "10"},
         {10062, "5000000"},
         {10027, "5"},
         {63005, "0.05"},
         {63059, "Y"},
         {49033, name},
         {54730, symbol},
         {63023, "120.00"},
         {54803, "105.50"},
         {54571, "Y"},
         {61362, "Y"},
         {54009, "200000"}});
}

void order(const char* number, const char* issueId, const char* client, const char* quantity,
           const char* paise, const char* status, const char* cfStatus = "Active") {
  const bool market = std::string(paise) == "MKT";
  update({{64001, number},
          {49238, std::string("10000") + number},
          {63100, issueId},
          {54001, client},
          {12004, quantity},
          {10306, paise},
          {12008, market ? "MKT" : "L"},
          {64655, status},
          {63001, "nse_ipo"},
          {10100, "ABC-RS"},
          {64170, "100% Margin"},
          {10355, cfStatus},
          {54056, "C"},
          {31003, "U1"}});
}

void fillBook() {
  issue("101", "nse_ipo", "ABC", "RS", "19/11/2026", "24/11/2026", "100.00", "ABC Industries Ltd");
  issue("102", "nse_ipo", "ABC", "IS", "21/11/2026", "21/11/2026", "100.00", "ABC Industries Ltd");
  issue("201", "nse_ipo", "PQR", "RS", "25/11/2026", "27/11/2026", "75.00", "PQR Foods Ltd");
  issue("301", "nse_ipo", "DEF", "RS", "10/11/2026", "12/11/2026", "40.00", "DEF Metals Ltd");
  reply({{32767, "om_get_ofs_issues"}, {32766, ""}});
  order("1001", "101", "A1", "50", "10150", "cancelled");
  order("1002", "101", "A1", "100", "10200", "open");
  order("1003", "101", "A2", "20", "MKT", "open");
  order("1004", "101", "A2", "30", "10400", "open pending");
  order("1005", "101", "A1", "15", "10050", "rejected");
  order("1006", "101", "A2", "40", "10250", "open", "Inactive");
  order("1007", "101", "A1", "25", "10325", "complete");
  order("1008", "101", "A2", "1200", "10100", "open");
}

template <typename Screen>
Screen* opened(QWidget* owner) {
  return owner->findChild<Screen*>();
}

QAction* bookCommand(OrderBookWidget* book, const QString& text) {
  for (QAction* action : book->actions())
    if (action->text().startsWith(text)) return action;
  return nullptr;
}

QAbstractButton* button(QWidget* screen, const QString& text) {
  for (QAbstractButton* b : screen->findChildren<QAbstractButton*>())
    if (b->text().remove('&') == text) return b;
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
  const char* tabNames[] = {"watch-current", "watch-forthcoming", "watch-past"};
  for (int tab = 0; tab < 3; ++tab) {
    tabs->setCurrentIndex(tab);
    shoot(&frame, dir, tabNames[tab], variation);
  }
  tabs->setCurrentIndex(0);
  watch->selectRows("current", {"101"});

  const struct {
    int command;
    const char* name;
  } fromWatch[] = {
      {4, "order-entry"}, {7, "scrip-properties"}, {8, "market-depth"}, {10, "issue-dialog"}};
  for (const auto& screen : fromWatch) {
    watch->runCommand(screen.command);
    settle();
    QWidget* shown = nullptr;
    if (screen.command == 4) shown = opened<OrderEntryDialog>(watch);
    if (screen.command == 7) shown = opened<ScripPropertiesDialog>(watch);
    if (screen.command == 8) shown = opened<MarketDepthDialog>(watch);
    if (screen.command == 10) shown = opened<IssueDetailsDialog>(watch);
    shoot(shown, dir, screen.name, variation);
    if (shown) shown->hide();
  }

  watch->runCommand(6);
  auto* basket = opened<BasketDialog>(watch);
  if (basket) {
    host.promptLog.queueFile((samples + "/basket_sample.csv").toStdString());
    if (QAbstractButton* browse = button(basket, "Browse")) browse->click();
  }
  shoot(basket, dir, "basket", variation);
  if (basket) basket->hide();

  watch->selectRows("current", {"102"});  // the sample bid file's issue
  watch->runCommand(9);
  auto* bulk = opened<BulkUploadDialog>(watch);
  if (bulk) {
    for (QComboBox* kinds : bulk->findChildren<QComboBox*>()) {
      const int neat = kinds->findText("Bids file(NEAT Format)");
      if (neat < 0) continue;
      kinds->setCurrentIndex(neat);
      emit kinds->activated(neat);
    }
    host.promptLog.queueFile((samples + "/bulk_neat_sample.csv").toStdString());
    if (QAbstractButton* browse = button(bulk, "Browse")) browse->click();
  }
  shoot(bulk, dir, "bulk-upload", variation);
  if (bulk) bulk->hide();

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
  if (QAction* bulkModify = bookCommand(book, "Bulk Modify Order")) bulkModify->trigger();
  settle();
  auto* modifyPrice = opened<ModifyPriceDialog>(book);
  shoot(modifyPrice, dir, "modify-price", variation);
  if (modifyPrice) modifyPrice->hide();

  open->selectRow(0);
  if (QAction* history = bookCommand(book, "OFS Order History")) history->trigger();
  settle();
  const char* steps[][3] = {
      {"open pending", "10200", "100"}, {"open", "10200", "100"}, {"modified", "10300", "120"}};
  for (const auto& step : steps) {
    auto row = std::make_unique<sOFSOrderInfo>();
    row->status = step[0];
    row->price = step[1];
    row->quantity = step[2];
    row->field49238 = "100001008";
    row->timeText = "21Nov2026 09:15:00";
    if (controlBlock()->onHistoryRow) controlBlock()->onHistoryRow(std::move(row));
  }
  if (controlBlock()->onHistoryEnd) controlBlock()->onHistoryEnd();
  auto* history = opened<OrderHistoryDialog>(book);
  shoot(history, dir, "order-history", variation);
  if (history) history->hide();

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
  const struct {
    const char* name;
    double scale;
  } variations[] = {{"regular", 1.0}, {"large", 1.4}};
  for (const auto& variation : variations) {
    QFont font = regular;
    font.setPointSizeF(regular.pointSizeF() * variation.scale);
    QApplication::setFont(font);
    FakeHost host;
    host.clock = localTime(21, 11, 2026, 36000);
    host.state.userDirectory = scratch.path();
    host.state.rights.insert("VT: Add OFS Issue");
    host.state.accounts = {"A1", "A2", "PC1"};
    host.state.pcodes = {{"A1", "PC1"}, {"PC1", "PC1"}};
    host.state.peer1 = "TM1";
    initPlugin(host, host.app(), "U1", 3);
    drawEverything(dir, variation.name, host, samples);
    exitPlugin(host);
  }
  std::printf("%d picture(s) failed\n", failures);
  return failures == 0 ? 0 : 1;
}
