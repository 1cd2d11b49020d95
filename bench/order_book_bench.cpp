// The order book at scale: ingesting a reply of a million rows and rebuilding the lists once,
// and one live update that moves an order between the lists, at a thousand and a million.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "connectvorn/connectvorn.h"
#include "messaging/response_dispatcher.h"
#include "tests/support/standalone_context.h"

namespace {

using BenchContext = StandaloneContext;

using Message = std::unique_ptr<otp_message>;

// An order as the back end reports it: the fields of a full order-book row.
Message orderRow(const char* name, const std::string& number, const std::string& status) {
  std::vector<otpx::Field> fields{
      {32767, name},
      {12008, "L"},
      {63001, "nse_ipo"},
      {12005, "IND"},
      {64926, "1"},
      {64001, number},
      {64655, status},
      {10306, "12345"},
      {63100, "OFS2026001"},
      {54001, "CLIENT001"},
      {12004, "100"},
      {31003, "DEALER1"},
      {64170, "YES"},
      {10355, "Active"},
      {63058, "IND"},
      {10100, "ABC-RS"},
      {49238, "1100000012345678"},
      {10332, "PC001"},
      {54158, "GUI000123"},
      {54056, "C"},
      {63225, "Y"},
      {55, "1"},
      {10027, "1"},
      {10308, "0"},
      {10307, "0"},
  };
  if (name[0] == '\0') fields.erase(fields.begin());  // a live update carries no name
  return otp_message::build(fields);
}

// Distinct order numbers in no particular order, as a busy day's book arrives.
std::vector<std::string> orderNumbers(size_t count) {
  std::vector<std::string> numbers;
  numbers.reserve(count);
  for (size_t i = 0; i < count; ++i) numbers.push_back(std::to_string(2026000000000 + i * 7));
  std::shuffle(numbers.begin(), numbers.end(), std::mt19937(42));
  return numbers;
}

std::vector<Message> reportReply(size_t rows) {
  std::vector<Message> reply;
  reply.reserve(rows + 1);
  const char* statuses[] = {"open", "complete", "cancelled", "open pending", "rejected"};
  std::vector<std::string> numbers = orderNumbers(rows);
  for (size_t i = 0; i < rows; ++i)
    reply.push_back(orderRow("om_order_report_ofs", numbers[i], statuses[i % 5]));
  reply.push_back(
      otp_message::build(std::vector<otpx::Field>{{32767, "om_order_report_ofs"}, {32766, ""}}));
  return reply;
}

void ingest(BenchContext& context, const std::vector<Message>& reply) {
  for (const Message& message : reply) dispatchResponse(context, message.get());
}

void BM_OrderBookReplyIngest(benchmark::State& state) {
  static const std::vector<Message> reply = reportReply(static_cast<size_t>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    auto context = std::make_unique<BenchContext>();
    state.ResumeTiming();
    ingest(*context, reply);
    benchmark::DoNotOptimize(context->book.open.rowCount());
    state.PauseTiming();
    context.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_OrderBookReplyIngest)->Arg(1'000'000)->Unit(benchmark::kMillisecond)->Iterations(3);

// Each update moves a random known order to the other list (open <-> complete).
void BM_LiveOrderUpdate(benchmark::State& state) {
  size_t orders = static_cast<size_t>(state.range(0));
  BenchContext context;
  ingest(context, reportReply(orders));
  std::vector<std::string> numbers;
  for (const auto& entry : context.store.orders) numbers.push_back(entry.first);
  std::mt19937 random(7);
  std::vector<Message> updates;
  for (int i = 0; i < 4096; ++i) {
    const std::string& number = numbers[random() % numbers.size()];
    bool open = context.store.orders[number]->status == "open";
    updates.push_back(orderRow("", number, open ? "complete" : "open"));
  }
  size_t next = 0;
  for (auto _ : state) {
    dispatchLiveUpdate(context, updates[next].get());
    next = (next + 1) % updates.size();
  }
  benchmark::DoNotOptimize(context.book.closed.rowCount());
}
BENCHMARK(BM_LiveOrderUpdate)->Arg(1'000)->Arg(1'000'000);

// The lists alone: a random listed order moves to the top of the other list.
void BM_BookListMove(benchmark::State& state) {
  std::vector<sOFSOrderInfo> orders(static_cast<size_t>(state.range(0)));
  OrderBookLists book;
  std::vector<sOFSOrderInfo*> all;
  for (sOFSOrderInfo& order : orders) all.push_back(&order);
  book.open.reset(all);
  std::mt19937 random(7);
  for (auto _ : state) {
    sOFSOrderInfo* order = &orders[random() % orders.size()];
    bool open = book.open.contains(order);
    (open ? book.open : book.closed).remove(order);
    (open ? book.closed : book.open).insertTop(order);
  }
}
BENCHMARK(BM_BookListMove)->Arg(1'000)->Arg(1'000'000);

}  // namespace

BENCHMARK_MAIN();
