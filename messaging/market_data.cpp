// "mrv_master" replies and market-data live updates: the Market Depth window and the
// underlying prices of the watch view.
#include <cmath>

#include "messaging/dispatch_steps.h"

namespace {

struct Instrument {
  std::string exchange;  // 63001
  std::string symbol;    // 10100
};

bool readInstrument(const MessageView& message, Instrument& instrument) {
  return message.text(63001, 0, instrument.exchange) && message.text(10100, 0, instrument.symbol);
}

// Reads the five levels; a missing field keeps its old value. Returns the change of the
// quantity on the levels.
int64_t readLevels(const MessageView& message, MarketDepthState& depth) {
  int64_t quantityChange = 0;
  for (uint32_t i = 0; i < depth.levels.size(); ++i) {
    MarketDepthLevel& level = depth.levels[i];
    int32_t oldQuantity = level.quantity;
    message.number(55000 + i, 0, level.price);
    message.number(55500 + i, 0, level.quantity);
    message.number(56000 + i, 0, level.bids);
    quantityChange += int64_t{level.quantity} - oldQuantity;
  }
  return quantityChange;
}

// A reply without a last-update time shows "NA"; a live update without one keeps the old text.
void fillDepth(MarketDepthState& depth, const MessageView& message, bool liveUpdate) {
  std::string lastUpdate = message.text(63080);
  if (!lastUpdate.empty())
    depth.lastUpdate = lastUpdate;
  else if (!liveUpdate)
    depth.lastUpdate = "NA";
  int64_t quantityChange = readLevels(message, depth);
  int32_t total = 0;
  if (message.number(54283, 0, total))
    depth.totalBidQuantity = total;
  else
    depth.totalBidQuantity += quantityChange;
}

// The Market Depth window follows only the instrument it shows. The copy kept for a subscribed
// feed follows the same messages on its own, whether the window is open or not.
void applyDepth(DispatchContext& context, const MessageView& message, const Instrument& at,
                bool liveUpdate) {
  if (MarketDepthState* kept = context.feedDepth(at.exchange, at.symbol)) {
    fillDepth(*kept, message, liveUpdate);
    context.feedDepthChanged(*kept);
  }
  MarketDepthState* depth = context.marketDepth();
  if (!depth || depth->exchange != at.exchange || depth->symbol != at.symbol) return;
  fillDepth(*depth, message, liveUpdate);
  context.marketDepthChanged();
  context.handInstrumentToHost(at.exchange, at.symbol);
}

void applyAssetPrice(DispatchContext& context, const MessageView& message, const Instrument& at) {
  sAssetInfo* asset = findRecord(context.records().assets, at.exchange + "|" + at.symbol);
  if (!asset) return;
  asset->decimals = 2;
  message.number(63050, 0, asset->decimals);
  asset->divisor = std::pow(10.0, asset->decimals);
  message.number(6, 0, asset->ltp);
  if (asset->shown) return;
  context.assetFirstShown(at.exchange, at.symbol);
  asset->shown = true;
}

}  // namespace

void handleMarketRow(DispatchContext& context, const MessageView& row) {
  Instrument at;
  if (!readInstrument(row, at)) return;
  if (row.count(32760) < 2) applyDepth(context, row, at, false);
  if (row.text(32760) == "Asset LTP") applyAssetPrice(context, row, at);
}

void applyLiveMarketData(DispatchContext& context, const MessageView& update) {
  Instrument at;
  if (!readInstrument(update, at)) return;
  applyDepth(context, update, at, true);
  applyAssetPrice(context, update, at);
}
