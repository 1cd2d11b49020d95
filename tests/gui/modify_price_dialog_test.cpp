#include <gtest/gtest.h>
#include <stdlib.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "tests/support/fake_host.h"
#include "ui/modify_price_dialog.h"

namespace {

struct ModifyPriceWindow : testing::Test {
  ModifyPriceWindow() {
    host.state.userDirectory = getenv("XDG_DATA_HOME");
    initPlugin(host, host.app(), "U1", 3);
  }
  ~ModifyPriceWindow() override { exitPlugin(host); }
  FakeHost host;
};

TEST_F(ModifyPriceWindow, TypingIsBoundAndASentRunHidesIt) {
  auto& issue = controlBlock()->recordMaps.issues["ABC-RS"];
  issue = std::make_unique<sOFSCol>();
  issue->tickSize = 0.05;
  sOFSOrderInfo order;
  order.ofsOrderNo = "17";
  order.symbol = "ABC-RS";
  order.clientId = "A1";
  order.quantity = "100";
  ModifyPriceDialog dialog(*controlBlock());
  dialog.present({&order}, "Number Of Orders : 1 Total Qty : 100 ");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(dialog.property("heading").toString(), "Number Of Orders : 1 Total Qty : 100 ");
  EXPECT_EQ(dialog.findChild<QTableView*>("orders")->model()->rowCount(), 1);
  QLineEdit* price = nullptr;
  for (QLabel* l : dialog.findChildren<QLabel*>())
    if (l->text() == "Price") price = qobject_cast<QLineEdit*>(l->buddy());
  ASSERT_NE(price, nullptr);
  for (const QString text : {"150", "150x"}) emit price->textEdited(text);
  EXPECT_EQ(price->text(), "150");
  for (QPushButton* b : dialog.findChildren<QPushButton*>())
    if (b->text() == "OK") b->click();
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_TRUE(price->text().isEmpty());
}

}  // namespace
