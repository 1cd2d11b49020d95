// Every window of the plug-in: Esc closes it, each control has an accessible name, and each
// field a refusal names takes the focus by that name. Then the order entry driven from the
// keyboard alone, with real key events.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QTest>

#include "orderbook/modify_price_checks.h"
#include "tests/support/order_entry_fixture.h"
#include "ui/basket_dialog.h"
#include "ui/bulk_upload_dialog.h"
#include "ui/client_search_box.h"
#include "ui/issue_details_dialog.h"
#include "ui/market_depth_dialog.h"
#include "ui/modify_price_dialog.h"
#include "ui/order_entry_dialog.h"
#include "ui/order_history_dialog.h"
#include "ui/order_number_dialog.h"
#include "ui/qt_prompt.h"
#include "ui/scrip_properties_dialog.h"

namespace {

struct Made {
  COFSControlBlock& block;
  PromptPort& prompt;
  OrderHistoryDialog& history;
};

struct Window {
  const char* name;
  QDialog* (*make)(Made&);
  std::vector<std::string> refusalFields;
  friend void PrintTo(const Window& w, std::ostream* os) { *os << w.name; }
};

std::vector<std::string> issueFields() {
  std::vector<std::string> fields(kIssueListLabels.begin(), kIssueListLabels.end());
  for (const IssueTextInfo& text : kIssueTexts) fields.push_back(text.label);
  return fields;
}

using namespace basket_label;
using D = QDialog*;
const Window kWindows[] = {
    {"OrderEntry",
     [](Made& m) -> D { return new OrderEntryDialog(m.block, m.prompt); },
     {entry_label::kQuantity, entry_label::kPrice, entry_label::kClientCode}},
    {"Basket",
     [](Made& m) -> D { return new BasketDialog(m.block); },
     {kClientId, kQuantity, kPrice}},
    {"BulkUpload", [](Made& m) -> D { return new BulkUploadDialog(m.block); }, {}},
    {"IssueDetails", [](Made& m) -> D { return new IssueDetailsDialog(m.block); }, issueFields()},
    {"ModifyPrice",
     [](Made& m) -> D { return new ModifyPriceDialog(m.block); },
     {kModifyPriceLabel, kModifyQuantityLabel}},
    {"OrderHistory", [](Made& m) -> D { return new OrderHistoryDialog(m.block); }, {}},
    {"OrderNumber", [](Made& m) -> D { return new OrderNumberDialog(m.history); }, {}},
    {"MarketDepth", [](Made& m) -> D { return new MarketDepthDialog(m.block); }, {}},
    {"ScripProperties", [](Made&) -> D { return new ScripPropertiesDialog; }, {}},
};

// The name a screen reader announces: a field's own, a button's text. (Qt on Linux reads a
// list's current entry as its name, so the accessibility interface proves nothing for lists.)
QString nameOf(const QWidget* w) {
  if (!w->accessibleName().isEmpty()) return w->accessibleName();
  if (auto* b = qobject_cast<const QAbstractButton*>(w)) return b->text().remove('&');
  return {};
}

// The widgets a dealer reaches: not labels, not the parts of a composite control.
bool isControl(const QWidget* w, const QDialog* window) {
  if (w->window() != window || w->focusPolicy() == Qt::NoFocus || w->focusProxy()) return false;
  const QObject* parent = w->parent();
  return !qobject_cast<const QComboBox*>(parent) && !qobject_cast<const QAbstractSpinBox*>(parent);
}

class WindowKeys : public OrderEntryFixture, public testing::WithParamInterface<Window> {
 protected:
  WindowKeys() {
    start();
    history = std::make_unique<OrderHistoryDialog>(block());
    Made made{block(), qtPrompt, *history};
    window.reset(GetParam().make(made));
    window->show();
    QApplication::setActiveWindow(window.get());
  }
  ~WindowKeys() override { window.reset(); }

  QtPrompt qtPrompt;
  std::unique_ptr<OrderHistoryDialog> history;
  std::unique_ptr<QDialog> window;
};

TEST_P(WindowKeys, EveryControlHasAnAccessibleName) {
  int controls = 0;
  for (QWidget* w : window->findChildren<QWidget*>()) {
    if (!isControl(w, window.get())) continue;
    ++controls;
    EXPECT_FALSE(nameOf(w).isEmpty()) << w->metaObject()->className();
  }
  EXPECT_GT(controls, 0);
}

TEST_P(WindowKeys, ARefusalsFieldTakesTheFocus) {
  // Whether a field is enabled is the screen's business; here it is which field a label finds.
  for (QWidget* w : window->findChildren<QWidget*>()) w->setEnabled(true);
  for (const std::string& field : GetParam().refusalFields) {
    qtPrompt.focus(field);
    ASSERT_NE(window->focusWidget(), nullptr) << field;
    EXPECT_EQ(window->focusWidget()->accessibleName().toStdString(), field);
  }
}

TEST_P(WindowKeys, EscapeClosesTheWindow) {
  ASSERT_TRUE(window->isVisible());
  QTest::keyClick(window->focusWidget() ? window->focusWidget() : window.get(), Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
}

INSTANTIATE_TEST_SUITE_P(Windows, WindowKeys, testing::ValuesIn(kWindows),
                         [](const auto& info) { return std::string(info.param.name); });

// The order entry from the keyboard alone.
class OrderEntryKeys : public OrderEntryFixture {
 protected:
  OrderEntryKeys() {
    host.state.accounts = {"A1", "A2"};
    host.state.searchList = {"A1", "A2"};
    start();
    view = std::make_unique<OrderEntryDialog>(block(), prompt());
    view->openNewBid(addIssue(nseIssue()));
    QApplication::setActiveWindow(view.get());
  }
  ~OrderEntryKeys() override { view.reset(); }

  QWidget* focused() const { return QApplication::focusWidget(); }
  QString focusedName() const { return focused() ? focused()->accessibleName() : QString(); }
  void type(const char* text) { QTest::keyClicks(focused(), text); }
  void key(Qt::Key k) { QTest::keyClick(focused(), k); }
  ClientSearchBox* clientCode() const { return view->findChild<ClientSearchBox*>(); }

  std::unique_ptr<OrderEntryDialog> view;
};

TEST_F(OrderEntryKeys, TabFollowsTheFieldsAsTheyReadAndPassesReadOnlyOnes) {
  // The walk-in fields are hidden, the category is for BSE and the participant code list is
  // disabled for a retail series.
  const char* const order[] = {"Price",       "CutOff", "Order Type", "Pro/Cli",
                               "Client Code", "...",    "Margin",     "Submit"};
  ASSERT_EQ(focusedName(), "Quantity");
  for (const char* name : order) {
    key(Qt::Key_Tab);
    EXPECT_EQ(nameOf(focused()), name);
  }
}

TEST_F(OrderEntryKeys, ABidPlacedWithTheKeyboardAloneIsSent) {
  type("100");
  key(Qt::Key_Tab);
  type("150");
  while (focused() != clientCode()) key(Qt::Key_Tab);
  type("A");
  QTRY_VERIFY(clientCode()->resultsShown());
  key(Qt::Key_Escape);  // closes the results, not the window
  EXPECT_TRUE(view->isVisible() && !clientCode()->resultsShown());
  key(Qt::Key_2);  // typing on searches again
  key(Qt::Key_Backspace);
  QTRY_VERIFY(clientCode()->resultsShown());
  EXPECT_EQ(clientCode()->results()->count(), 2);
  key(Qt::Key_Down);
  key(Qt::Key_Return);  // takes the result, the window stays
  EXPECT_FALSE(clientCode()->resultsShown());
  EXPECT_EQ(clientCode()->text(), "A2");
  EXPECT_TRUE(sends().empty());
  key(Qt::Key_Return);  // the default button: Submit
  EXPECT_EQ(prompt().messages(), Lines{});
  ASSERT_EQ(sends().size(), 1u);
  for (const char* field : {"om_put_order_ofs", "54001=\"A2\"", "12004=\"100\""})
    EXPECT_NE(sends()[0].find(field), std::string::npos) << field << " in " << sends()[0];
}

TEST_F(OrderEntryKeys, TheClientBaseAnswersWhenTheListHasNoneAndWithoutEitherTypingWorks) {
  HostServiceTable& services = block().services;
  services.getEnteredTextResults = [](const std::string&, StringList& out) {
    return out.clear(), 1;
  };
  services.getEnteredTextResultsFromClientsDb = [](const std::string&, StringList& out) {
    return out = {"C9 - Nine"}, 1;
  };
  while (focused() != clientCode()) key(Qt::Key_Tab);
  type("C");
  QTRY_VERIFY(clientCode()->resultsShown());
  key(Qt::Key_Return);
  EXPECT_EQ(clientCode()->text(), "C9");  // the id without the name
  services.getEnteredTextResults = nullptr;
  services.getEnteredTextResultsFromClientsDb = nullptr;
  type("1");
  QTest::qWait(20);
  EXPECT_FALSE(clientCode()->resultsShown());
  EXPECT_EQ(clientCode()->text(), "C91");
}

}  // namespace
