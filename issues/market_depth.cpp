#include "issues/market_depth.h"

#include <cstdio>

#include "domain/exchange_names.h"

namespace {

std::string rupees(int32_t paise) {
  char text[32];
  std::snprintf(text, sizeof text, "%.2lf", paise / 100.0);
  return text;
}

}  // namespace

CMarketDepth::~CMarketDepth() {
  close();
}

void CMarketDepth::open(const sOFSCol& issue) {
  exchange_ = issue.exchange;
  symbol_ = issue.symbol;
  floorPrice_ = issue.floorPrice;
  indicativePrice_ = issue.field54803;
  auto state = std::make_unique<MarketDepthState>();
  state->exchange = issue.exchange;
  state->symbol = issue.symbol;
  state->lastUpdate = "NA";
  port_.marketDepthState() = std::move(state);
  port_.ensurePriceFeed(issue.exchange, issue.symbol);
}

void CMarketDepth::close() {
  // Only the window that opened the state may end it: another issue's window may own it now.
  MarketDepthState* state = port_.marketDepthState().get();
  if (state && state->exchange == exchange_ && state->symbol == symbol_)
    port_.marketDepthState().reset();
  exchange_.clear();
  symbol_.clear();
}

bool CMarketDepth::isOpen() const {
  const MarketDepthState* state = port_.marketDepthState().get();
  return state && !symbol_.empty() && state->exchange == exchange_ && state->symbol == symbol_;
}

std::string CMarketDepth::title() const {
  return "Market Depth - " + symbol_ + " (" + exchangeScreenName(exchange_) + ")";
}

std::array<CMarketDepth::Level, 5> CMarketDepth::levels() const {
  std::array<Level, 5> out;
  if (!isOpen()) return out;
  for (size_t i = 0; i < out.size(); ++i) {
    const MarketDepthLevel& level = port_.marketDepthState()->levels[i];
    out[i] = {rupees(level.price), std::to_string(level.quantity), std::to_string(level.bids)};
  }
  return out;
}

std::string CMarketDepth::totalBidQuantity() const {
  return isOpen() ? std::to_string(port_.marketDepthState()->totalBidQuantity) : "0";
}

std::string CMarketDepth::lastUpdate() const {
  return isOpen() ? port_.marketDepthState()->lastUpdate : "NA";
}

DemandCurve CMarketDepth::demand() const {
  if (!isOpen()) return demandCurve({}, floorPrice_, indicativePrice_);
  return demandCurve(port_.marketDepthState()->levels, floorPrice_, indicativePrice_);
}
