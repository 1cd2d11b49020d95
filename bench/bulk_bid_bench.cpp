// Reading and checking 1,000,000 bid file lines of each kind: lines per second, then the same
// with the accepted rows kept as the upload grid keeps them, and the heap each row costs.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <string>
#include <vector>

#include "basket/bulk_bid_checks.h"
#include "basket/bulk_bid_readers.h"

namespace {

constexpr size_t kLines = 1'000'000;

BidLookups lookups() {
  BidLookups l;
  for (const char* symbol : {"ABC-IS", "ABC-RS"}) {
    sOFSCol issue;
    issue.issueId = symbol[4] == 'I' ? "101" : "102";
    issue.symbol = symbol;
    issue.floorPrice = "100";
    issue.field63023 = "120";
    issue.field63059 = std::string(1, 'Y');
    issue.field54009 = "200000";
    issue.hniLimit = "10000";
    issue.lotSize = 10;
    issue.minQuantity = 20;
    issue.issueSize = 5'000'000;
    issue.tickSize = 0.05;
    l.addIssue(issue);
  }
  for (int i = 0; i < 1000; ++i) l.addAccount("ACC" + std::to_string(i), "PC1");
  l.addAccount("BSE1", "");
  return l;
}

// Line `i` of a file of `kind`: good lines whose quantity and price vary.
std::string lineOf(BidFileKind kind, size_t i) {
  const std::string qty = std::to_string(100 + 10 * (i % 50));
  const std::string price = std::to_string(100 + i % 20) + "." + std::to_string(10 + 5 * (i % 18));
  const std::string account = "ACC" + std::to_string(i % 1000);
  switch (kind) {
    case BidFileKind::Neat:
      return "x01,01,ABC,IS," + qty + "," + price + ",CLI," + account + ",PC1,02\n";
    case BidFileKind::Now:
      return "xOFFLINE,ABC,IS," + qty + "," + price + ",CLI," + account + ",PC1,NO,,\n";
    case BidFileKind::NowModCxl:
      return "xOFFLINE,N" + std::to_string(i) + ",ABC,IS," + qty + "," + price + ",CLI," + account +
             ",PC1,NO,,M\n";
    case BidFileKind::Vt:
      break;
  }
  return "NSEIPO,CLI,BSE1,,102," + qty + "," + price + ",100% Margin,N,Retail,\n";
}

// Read and check every line; with `keep` the accepted rows are also kept, as the upload grid
// keeps them, and the heap each costs is measured.
void readAndCheck(benchmark::State& state, bool keep) {
  const auto kind = static_cast<BidFileKind>(state.range(0));
  std::vector<std::string> file;
  file.reserve(kLines);
  for (size_t i = 0; i < kLines; ++i) file.push_back(lineOf(kind, i));
  const BidLookups l = lookups();
  const BidContext context = l.context("TM1");
  size_t accepted = 0;
  double heapPerRow = 0;
  for (auto _ : state) {
    std::vector<BidLine> rows;
    rows.reserve(keep ? kLines : 0);
    const size_t before = mallinfo2().uordblks;
    BidLine line;
    accepted = 0;
    for (const std::string& text : file) {
      if (!readBidLine(kind, text, line).empty() || !checkBidLine(line, context).empty()) continue;
      ++accepted;
      if (keep) rows.push_back(std::move(line));
    }
    heapPerRow = static_cast<double>(mallinfo2().uordblks - before) / std::max<size_t>(1, accepted);
    benchmark::DoNotOptimize(rows.data());
  }
  state.SetLabel(bidFileKindText(kind));
  state.counters["lines/s"] = benchmark::Counter(static_cast<double>(kLines) * state.iterations(),
                                                 benchmark::Counter::kIsRate);
  state.counters["accepted"] = static_cast<double>(accepted);
  // The row itself plus the heap its line text takes.
  if (keep) state.counters["bytes/row"] = static_cast<double>(sizeof(BidLine)) + heapPerRow;
}

void BM_ReadAndCheck(benchmark::State& state) {
  readAndCheck(state, false);
}

void BM_LoadRows(benchmark::State& state) {
  readAndCheck(state, true);
}

}  // namespace

BENCHMARK(BM_ReadAndCheck)
    ->DenseRange(1, 4)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3)
    ->UseRealTime();
BENCHMARK(BM_LoadRows)
    ->DenseRange(1, 4)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->UseRealTime();

BENCHMARK_MAIN();
