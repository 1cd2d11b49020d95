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
  controlBlock()->recordMaps.issues["ABC-RS"] = std::make_unique<sOFSCol>();
  sOFSOrderInfo order;
  order.symbol = "ABC-RS";
  ModifyPriceDialog dialog(*controlBlock());
  dialog.present({&order}, "Number Of Orders : 1 Total Qty : 100 ");
  EXPECT_EQ(dialog.property("heading").toString(), "Number Of Orders : 1 Total Qty : 100 ");
  EXPECT_EQ(dialog.findChild<QTableView*>("orders")->model()->rowCount(), 1);
  auto* price = qobject_cast<QLineEdit*>(dialog.findChildren<QLabel*>()[1]->buddy());
  for (const QString text : {"150", "150x"}) emit price->textEdited(text);
  EXPECT_EQ(price->text(), "150");  // the refused keystroke put back what the window holds
  ASSERT_TRUE(dialog.isVisible());
  dialog.findChildren<QPushButton*>()[0]->click();  // "OK"
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_TRUE(price->text().isEmpty());
}

}  // namespace
