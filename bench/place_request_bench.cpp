// Framing one place request into the scratch buffer: the builder's conversions, the sending
// procedure's start and adds, and a receive control whose send takes the bytes and returns.
#include <benchmark/benchmark.h>

#include "connectvorn/connectvorn.h"
#include "messaging/order_requests.h"
#include "tests/support/standalone_context.h"

using namespace std::string_literals;

namespace {

class TakeBytes : public IIrbeRxControl {
 public:
  int Kind() const override { return 2; }
  int Send(int* result, otp_handle_t handle, int, int*) override {
    benchmark::DoNotOptimize(otpx::currentMessage(handle).size());
    *result = 1;
    return 1;
  }
  int Subscribe(int*, const uint32_t*, const otp_value*, int, int, int, int, int, int*) override {
    return 1;
  }
};

sOFSPlaceOrder retailBid() {
  sOFSPlaceOrder bid;
  bid.category = "Retail";
  bid.issueId = "101";
  bid.clientId = "ACC001";
  bid.pCode = "PC0001";
  bid.price = "101.05";
  bid.quantity = "150";
  bid.proCli = "CLI";
  bid.margin = "YES";
  bid.priceType = "L"s;  // gcc 12 -O3 misreads a one-letter literal assignment (-Wrestrict)
  bid.screenName = "NSEIPO";
  return bid;
}

void BM_FramePlaceRequest(benchmark::State& state) {
  SilentPrompt prompt;
  TakeBytes control;
  MessageLayer layer(connectvornOps(), prompt);
  otp_scratch_t scratch = nullptr;
  otp_handle_t handle = nullptr;
  int err = 0;
  otp_open_scratch(&scratch, 32768, &err);
  otp_ctor_primecb(&handle, &err);
  layer.setHandles(handle, scratch);
  layer.setControl(Control::First, &control);
  const OrderContext context{layer, "DEALER1", "DLR1", nullptr, nullptr};
  const sOFSPlaceOrder bid = retailBid();
  for (auto _ : state) {
    sOFSPlaceOrder order = bid;  // the builder writes the Pro/Cli letter back
    benchmark::DoNotOptimize(placeOfsOrder(context, order));
  }
  otp_dtor_primecb(&handle, &err);
  otp_close_scratch(&scratch, &err, 0);
}
BENCHMARK(BM_FramePlaceRequest);

}  // namespace

BENCHMARK_MAIN();
