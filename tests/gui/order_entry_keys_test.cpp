// The order entry driven from the keyboard alone, with real key events.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "tests/support/order_entry_fixture.h"
#include "ui/client_search_box.h"
#include "ui/order_entry_dialog.h"

namespace {

// The name a screen reader announces: a field's own, a button's text. (Qt on Linux reads a
// list's current entry as its name, so the interface's name proves nothing for lists.)
QString nameOf(const QWidget* w) {
  if (!w->accessibleName().isEmpty()) return w->accessibleName();
  if (auto* b = qobject_cast<const QAbstractButton*>(w)) return b->text().remove('&');
  return {};
}

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
