#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <random>

#include "domain/book_list.h"

namespace {

struct RecordingListener : BookListListener {
  void beforeInsert(size_t row) override { calls.push_back("insert " + std::to_string(row)); }
  void beforeRemove(size_t row) override { calls.push_back("remove " + std::to_string(row)); }
  void rowChanged(size_t row) override { calls.push_back("changed " + std::to_string(row)); }
  void beforeReset() override { calls.push_back("reset"); }
  std::vector<std::string> calls;
};

// Inserts, deletes and lookups at random against a plain deque, past several regrowths and
// compactions of the slots.
TEST(BookList, AgreesWithAPlainListUnderRandomEdits) {
  std::vector<sOFSOrderInfo> orders(3000);
  BookList list{0};
  std::deque<sOFSOrderInfo*> model;
  std::mt19937 random(7);
  for (int step = 0; step < 20000; ++step) {
    sOFSOrderInfo* order = &orders[random() % orders.size()];
    auto at = std::find(model.begin(), model.end(), order);
    if (at == model.end()) {
      list.insertTop(order);
      model.push_front(order);
    } else if (random() % 3 != 0) {
      EXPECT_EQ(list.rowOf(order), static_cast<size_t>(at - model.begin()));
      list.remove(order);
      model.erase(at);
    }
    ASSERT_EQ(list.rowCount(), model.size());
    if (!model.empty()) {
      size_t row = random() % model.size();
      ASSERT_EQ(list.rowAt(row), model[row]) << "step " << step;
    }
  }
  EXPECT_EQ(list.rowAt(model.size()), nullptr);
}

TEST(BookList, TellsTheListenerWhichRowChanges) {
  std::vector<sOFSOrderInfo> orders(3);
  BookList list{0};
  RecordingListener listener;
  list.setListener(&listener);
  list.reset({&orders[0], &orders[1]});  // orders[1] on top
  list.insertTop(&orders[2]);
  list.repaint(&orders[1]);
  list.remove(&orders[0]);
  list.remove(&orders[0]);
  list.repaint(&orders[0]);
  EXPECT_EQ(listener.calls,
            (std::vector<std::string>{"reset", "insert 0", "changed 1", "remove 2"}));
}

}  // namespace
