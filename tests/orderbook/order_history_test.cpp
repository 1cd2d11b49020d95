#include <gtest/gtest.h>

#include "orderbook/order_history.h"
#include "orderbook/order_number_prompt.h"
#include "tests/support/field_text.h"
#include "tests/support/local_time.h"
#include "tests/support/recording_dispatch_context.h"

namespace {

constexpr const char* kRow = "32767=om_get_order_history_ofs 64001=17 31003=U1 10303=open ";

class FakeBookPort : public OrderBookPort {
 public:
  explicit FakeBookPort(TestChannel& channel) : channel_(channel) {}
  OrderContext orderContext() override { return {channel_.layer, user_, ""}; }
  MessageLayer& messageLayer() override { return channel_.layer; }
  const std::string& userId() const override { return user_; }
  int64_t now() const override { return 0; }
  PromptPort& prompt() override { return channel_.prompt; }
  const sOFSCol* issueOfOrder(const sOFSOrderInfo&) const override { return nullptr; }

 private:
  TestChannel& channel_;
  std::string user_ = "U9";
};

class RecordingListener : public OrderHistoryListener {
 public:
  void rowsAppended(size_t first, size_t count) override {
    events.push_back(std::string("rows ") + std::to_string(first) + "+" + std::to_string(count));
  }
  void rowsReset() override { events.push_back("reset"); }
  void titleChanged() override { events.push_back("title"); }
  void detailsChanged() override { events.push_back("details"); }
  Lines events;
};

// Rows travel as on the wire: the dispatcher reads them and the history receives them.
class OrderHistoryTest : public testing::Test {
 protected:
  OrderHistoryTest() { history.setListener(&listener); }

  void reply(const std::string& fields) {
    wire.respond(fieldsOf(kRow + fields));
    for (auto& row : wire.history) history.addRow(std::move(row));
    wire.history.clear();
  }
  Lines line(size_t row) const {
    Lines cells;
    for (int column = 0; column < kHistoryColumnCount; ++column)
      cells.push_back(history.cellText(row, column));
    return cells;
  }
  Lines details() const { return {history.details().begin(), history.details().end()}; }

  RecordingDispatchContext wire;
  FakeBookPort port{wire.channel};
  RecordingListener listener;
  COrderHistory history{port};
};

TEST_F(OrderHistoryTest, LinesShowTimePriceQuantityStatusAndGuiNumber) {
  const std::string tenFifteen = std::to_string(localTime(21, 11, 2026, 10 * 3600 + 15 * 60));
  struct Case {
    const char* name;
    std::string fields;
    Lines cells;
  } cases[] = {
      {"market",
       "12008=MKT 10306=12345 12004=10 54158=G1 50101=7",
       {".7", "MKT", "10", "open", "G1"}},
      {"limit",
       "12008=L 10306=12345 50100=" + tenFifteen + " 50101=42.9",
       {"21Nov2026 10:15:00.42", "123.45", "", "open", ""}},
      // Read as whole paise: the fraction is cut, where the order book would round it.
      {"fraction_of_a_paisa", "10306=12345.9", {".0", "123.45", "", "open", ""}},
      {"no_price", "", {".0", "0.00", "", "open", ""}},
  };
  for (const Case& c : cases) reply(c.fields);
  ASSERT_EQ(history.rowCount(), std::size(cases));
  for (size_t i = 0; i < std::size(cases); ++i) EXPECT_EQ(line(i), cases[i].cells) << cases[i].name;
}

TEST_F(OrderHistoryTest, OpeningTitlesForgetsOldLinesAndAsksForTheHistory) {
  reply("");
  history.replyEnded();
  listener.events.clear();
  history.open("1001");
  EXPECT_EQ(history.title(), "Order History for Order No.:1001");
  EXPECT_EQ(history.rowCount(), 0u);
  EXPECT_EQ(details(), Lines(kHistoryDetailCount));
  EXPECT_EQ(wire.channel.transcript,
            (Lines{wireLine("send 1 om_get_order_history_ofs", "64001=1001 31003=U9")}));
  reply("");
  EXPECT_EQ(listener.events, (Lines{"reset", "title", "details", "rows 0+1"}));
}

TEST_F(OrderHistoryTest, DetailsComeFromTheSelectedLineElseTheLast) {
  history.replyEnded();
  EXPECT_TRUE(listener.events.empty()) << "an empty reply leaves the details as they are";
  reply("63001=bse_ipo 63100=I1 54056=C 54001=A1 49238=X1 64916=W1 20008=Too late");
  reply("63001=nse_ipo 63100=I2 54056=F 54001=A2 49238=X2 64916=W2 20008=");
  history.replyEnded();
  EXPECT_EQ(details(), (Lines{"NSEIPO", "I2", "F", "A2", "17", "X2", "U1", "W2", ""}));
  history.selectRow(0);
  history.replyEnded();
  EXPECT_EQ(details(), (Lines{"BSEIPO", "I1", "C", "A1", "17", "X1", "U1", "W1", "Too late"}));
  EXPECT_EQ(std::string(historyDetailLabels().back()), "Rejection Reason:");
}

TEST(OrderNumberPrompt, KeepsDigitsAndRefusesAnEmptyNumber) {
  RecordingPrompt prompt;
  Lines opened;
  CVornOrderNo dialog(prompt, [&](const std::string& number) { opened.push_back(number); });
  dialog.setOrderNo(" a- ");
  EXPECT_FALSE(dialog.ok());
  EXPECT_EQ(prompt.messages(), (Lines{"Please enter Order Number"}));
  dialog.setOrderNo(" 10x01 ");
  EXPECT_TRUE(dialog.ok());
  EXPECT_EQ(opened, (Lines{"1001"}));
}

}  // namespace
