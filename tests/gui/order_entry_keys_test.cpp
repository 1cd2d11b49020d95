#include <gtest/gtest.h>
#include <stdlib.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "tests/support/fake_host.h"
#include "ui/order_entry_dialog.h"

namespace {

class OrderEntryKeys : public testing::Test {
 protected:
  OrderEntryKeys() {
    host.clock = localTime(21, 11, 2026, 36000);
    host.state.userDirectory = getenv("XDG_DATA_HOME");
    initPlugin(host, host.app(), "U1", 3);
    issue.issueId = "N1";
    issue.exchange = "nse_ipo";
    issue.symbol = "ABC-RS";
    issue.field63059 = std::string(1, 'Y');  // gcc 12 -O3 misreads a literal assignment
    dialog = std::make_unique<OrderEntryDialog>(*controlBlock(), prompt);
    dialog->openNewBid(issue);
  }
  ~OrderEntryKeys() override {
    dialog.reset();
    exitPlugin(host);
  }
  void key(int code) {
    QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier);
    QApplication::sendEvent(dialog.get(), &press);
  }
  QLineEdit* field(const char* label) {
    for (QLabel* l : dialog->findChildren<QLabel*>())
      if (l->text() == label) return qobject_cast<QLineEdit*>(l->buddy());
    return nullptr;
  }

  FakeHost host;
  RecordingPrompt prompt;
  sOFSCol issue;
  std::unique_ptr<OrderEntryDialog> dialog;
};

TEST_F(OrderEntryKeys, EnterSubmitsAndARefusalKeepsWhatWasTyped) {
  ASSERT_TRUE(dialog->isVisible());
  EXPECT_EQ(dialog->property("heading").toString(), "Place OFS Order 3.14.7");
  QLineEdit* price = field("Price");
  ASSERT_NE(price, nullptr);
  price->setText("101");
  emit price->textEdited("101");
  key(Qt::Key_Return);
  EXPECT_EQ(prompt.messages(), (Lines{"Please enter Quantity"}));
  EXPECT_EQ(prompt.focused(), (Lines{"Quantity"}));
  EXPECT_EQ(price->text(), "101");
}

TEST_F(OrderEntryKeys, ATypedCharacterTheFieldRefusesIsPutBack) {
  QLineEdit* quantity = field("Quantity");
  ASSERT_NE(quantity, nullptr);
  quantity->setText("12");
  emit quantity->textEdited("12");
  quantity->setText("12x");
  emit quantity->textEdited("12x");
  EXPECT_EQ(quantity->text(), "12");
}

TEST_F(OrderEntryKeys, EscapeClosesTheWindow) {
  key(Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
}

}  // namespace
