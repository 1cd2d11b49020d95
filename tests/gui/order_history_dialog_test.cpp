#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QTableView>

#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "tests/support/fake_host.h"
#include "ui/order_history_dialog.h"
#include "ui/order_number_dialog.h"

namespace {

TEST(OrderHistoryWindow, TheNumberPromptOpensAHistoryThatTakesAHundredThousandLines) {
  FakeHost host;
  initPlugin(host, host.app(), "U1", 3);
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
    auto* table = window.findChild<QTableView*>("history");
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->model()->rowCount(), kLines);
    EXPECT_EQ(table->model()->index(kLines - 1, 3).data().toString(), "open");
    QStringList details;
    for (QLabel* label : window.findChildren<QLabel*>())
      if (auto* value = qobject_cast<QLabel*>(label->buddy()))
        details << label->text() + value->text();
    EXPECT_EQ(details.size(), 9);
    EXPECT_TRUE(details.contains("ExchangeOrderNo:99999")) << details.join("|").toStdString();
  }
  EXPECT_FALSE(controlBlock()->onHistoryRow);
  exitPlugin(host);
}

}  // namespace
