// The plug-in's own controls, driven by real key events.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "tests/support/scratch_dir.h"
#include "ui/auto_complete_combo.h"
#include "ui/demand_chart.h"
#include "ui/dialog_keys.h"
#include "ui/list_memory.h"
#include "ui/numeric_edit.h"
#include "ui/qt_prompt.h"
#include "ui/splitter_frame.h"

namespace {

using Seen = std::vector<std::string>;

// Answers every modal message box with `key` while it lives, recording "caption|text".
struct BoxAnswerer {
  explicit BoxAnswerer(Qt::Key key) {
    timer_.callOnTimeout([this, key] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box || !box->isVisible()) return;
      seen.push_back((box->windowTitle() + "|" + box->text()).toStdString());
      QTest::keyClick(box, key);
    });
    timer_.start(5);
  }
  Seen seen;
  QTimer timer_;
};

const auto caseName = [](const auto& info) { return std::string(info.param.name); };

struct NumericCase {
  const char* name;
  NumericEdit::Kind kind;
  const char *start, *typed, *after;  // a leading '^' selects all of start
  size_t refusals;
};

class NumericEditKeys : public testing::TestWithParam<NumericCase> {};

TEST_P(NumericEditKeys, RefusesWhatCannotBeANumberWithTheMessage) {
  const NumericCase& c = GetParam();
  QtPrompt prompt;
  NumericEdit edit(c.kind, &prompt);
  edit.setText(QString(c.start).remove('^'));
  if (c.start[0] == '^') edit.selectAll();
  BoxAnswerer answerer(Qt::Key_Return);
  QTest::keyClicks(&edit, c.typed);
  EXPECT_EQ(edit.text(), c.after);
  EXPECT_EQ(answerer.seen,
            Seen(c.refusals, "Unacceptable Character|You can only type a number here."));
}

using K = NumericEdit::Kind;
INSTANTIATE_TEST_SUITE_P(
    Cases, NumericEditKeys,
    testing::Values(NumericCase{"DigitsTakeDigits", K::Digits, "", "120", "120", 0},
                    NumericCase{"DigitsRefuseLetters", K::Digits, "12", "xY", "12", 2},
                    NumericCase{"DecimalTakesOnePoint", K::Decimal, "1", ".50", "1.50", 0},
                    NumericCase{"DecimalRefusesASecond", K::Decimal, "1.5", ".", "1.5", 1},
                    NumericCase{"APointReplacesTheSelected", K::Decimal, "^1.5", ".2", ".2", 0},
                    NumericCase{"ABlankIsRefused", K::Decimal, "", " 1", "1", 1}),
    caseName);

struct ComboCase {
  const char* name;
  // selected: the completed part, which typing on replaces; taken: what Enter takes (empty:
  // nothing, and Enter is the window's).
  const char *typed, *shown, *selected, *taken;
};

class ComboKeys : public testing::TestWithParam<ComboCase> {};

TEST_P(ComboKeys, TypingCompletesAndEnterTakes) {
  const ComboCase& c = GetParam();
  QDialog window;
  auto* combo = new AutoCompleteCombo(&window);
  combo->addItems({"ALPHA", "ALPINE", "BETA"});
  combo->setCurrentIndex(-1);
  auto* ok = new QPushButton("OK", &window);
  ok->setDefault(true);
  int oks = 0;
  QObject::connect(ok, &QPushButton::clicked, [&oks] { ++oks; });
  QStringList taken;
  QObject::connect(combo, &QComboBox::textActivated, [&taken](const QString& t) { taken << t; });
  window.show();
  QTest::keyClicks(combo, c.typed);
  EXPECT_EQ(combo->currentText(), c.shown);
  EXPECT_EQ(combo->lineEdit()->selectedText(), c.selected);
  QTest::keyClick(combo, Qt::Key_Return);
  QTest::keyClick(combo, Qt::Key_Return);
  EXPECT_EQ(taken, *c.taken ? QStringList{c.taken} : QStringList{});
  EXPECT_EQ(oks, *c.taken ? 1 : 2);
}

INSTANTIATE_TEST_SUITE_P(Cases, ComboKeys,
                         testing::Values(ComboCase{"FirstEntryThatBegins", "al", "ALPHA", "PHA",
                                                   "ALPHA"},
                                         ComboCase{"NoEntryBegins", "z", "z", "", ""}),
                         caseName);

struct Dragged : SplitterFrame {
  using QSplitter::moveSplitter;
  using SplitterFrame::SplitterFrame;
};

TEST(SplitterFrame, RemembersWhereTheBorderWasLeftPerWindow) {
  const ScratchDir scratch;
  setListRecoveryFiles(QString::fromStdString(scratch.path() + "/UserSetting.ini"), QString());
  auto shown = [](SplitterFrame& panes) {
    for (int i = 0; i < 2; ++i) panes.addWidget(new QWidget);
    panes.resize(200, 400);
    panes.show();
    panes.restoreSizes();
    return panes.sizes();
  };
  Dragged basket("Basket");
  const QList<int> first = shown(basket);
  basket.moveSplitter(120, 1);
  SplitterFrame again("Basket");
  SplitterFrame other("Bulk");
  EXPECT_EQ(shown(again), basket.sizes());
  EXPECT_EQ(shown(other), first);
  setListRecoveryFiles(QString(), QString());
}

TEST(WindowFonts, TheVariationReachesTheOpenWindowsInOrder) {
  QWidget root;
  struct Recorder : QObject {
    Seen order;
    bool eventFilter(QObject* o, QEvent* e) override {
      if (e->type() == QEvent::FontChange) order.push_back(o->objectName().toStdString());
      return false;
    }
  } recorder;
  // Made in another order than the one they follow; market depth is not open.
  for (const char* name : {"ModifyPrice", "OrderEntry", "IssueDetails", "BulkUpload"}) {
    auto* dialog = new QDialog(&root);
    dialog->setObjectName(name);
    dialog->installEventFilter(&recorder);
  }
  QDialog* entry = root.findChild<QDialog*>("OrderEntry");
  auto* heading = new QLabel("Heading", entry);
  heading->setFont(QFont("Verdana", 14, QFont::Bold));
  const int terminal = QApplication::font().pointSize();
  // Each variation replaces the one before; sizes stay within the bounds.
  const std::tuple<int, int, int> cases[] = {{3, terminal + 3, 17},
                                             {-2, terminal - 2, 12},
                                             {100, kMaxFontPoints, kMaxFontPoints},
                                             {-100, kMinFontPoints, kMinFontPoints}};
  for (auto [variation, window, own] : cases) {
    recorder.order.clear();
    reapplyWindowFonts(&root, variation, 40 + variation);
    EXPECT_EQ(recorder.order, (Seen{"OrderEntry", "BulkUpload", "IssueDetails", "ModifyPrice"}));
    EXPECT_EQ(entry->font().pointSize(), window) << variation;
    EXPECT_EQ(heading->font().pointSize(), own) << variation;
    EXPECT_EQ(entry->property("fontStamp").toLongLong(), 40 + variation);
  }
}

// How many pixels have the colour, and their mean column.
struct Columns {
  int pixels = 0;
  double meanX = 0;
};

Columns pixelsOf(const QImage& image, QRgb colour) {
  Columns found;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) == colour) {
        ++found.pixels;
        found.meanX += x;
      }
  if (found.pixels) found.meanX /= found.pixels;
  return found;
}

QImage rendered(DemandChart& chart, QSize size) {
  chart.resize(size);
  QImage image(size, QImage::Format_RGB32);
  chart.render(&image);
  return image;
}

TEST(DemandChart, DrawsTheCurveWithFloorLeftOfIndicativeAtAnySize) {
  DemandChart chart;
  // The floor below every bid, the indicative price between the levels.
  const MarketDepthLevel levels[] = {{10500, 300, 2}, {10000, 200, 1}, {10800, 100, 1}};
  chart.setCurve(demandCurve(levels, "95.00", "106"));
  for (const QSize size : {QSize(480, 260), QSize(120, 80)}) {
    const QImage image = rendered(chart, size);
    const Columns floor = pixelsOf(image, DemandChart::kFloorColor);
    const Columns indicative = pixelsOf(image, DemandChart::kIndicativeColor);
    EXPECT_GT(pixelsOf(image, DemandChart::kCurveColor).pixels, size.width() / 4) << size.width();
    EXPECT_GT(floor.pixels, size.height() / 4) << size.width();
    EXPECT_GT(indicative.pixels, size.height() / 4) << size.width();
    EXPECT_LT(floor.meanX, indicative.meanX) << size.width();
  }
}

TEST(DemandChart, AnEmptyBookShowsItsTextAndNoCurve) {
  DemandChart chart;
  chart.setCurve(demandCurve({}, "95.00", "106"));
  const QImage image = rendered(chart, QSize(300, 160));
  EXPECT_EQ(pixelsOf(image, DemandChart::kCurveColor).pixels, 0);
  EXPECT_EQ(pixelsOf(image, DemandChart::kFloorColor).pixels, 0);
  EXPECT_LT(pixelsOf(image, image.pixel(0, 0)).pixels, 300 * 160) << "the text is drawn";
}

}  // namespace
