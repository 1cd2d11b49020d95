#include "basket/bulk_bid_context.h"

#include "domain/series.h"

namespace {

// Symbol and series joined with a character no file field holds.
std::string symbolKey(std::string_view symbol, std::string_view series) {
  std::string key;
  key.reserve(symbol.size() + series.size() + 1);
  key.append(symbol).push_back('\n');
  key.append(series);
  return key;
}

}  // namespace

void BidLookups::addIssue(const sOFSCol& issue) {
  issues_.push_back(std::make_unique<sOFSCol>(issue));
  const sOFSCol* kept = issues_.back().get();
  const std::string_view symbol = std::string_view(kept->symbol).substr(0, kept->symbol.find('-'));
  bySymbol_[symbolKey(symbol, seriesOfSymbol(kept->symbol))] = kept;
  byId_[kept->issueId] = kept;
}

void BidLookups::addAccount(const std::string& account, const std::string& pCode) {
  accounts_[account] = pCode;
  if (!pCode.empty()) pCodes_[pCode] = 1;
}

void BidLookups::addOrder(const sOFSOrderInfo& order) {
  orders_[order.ofsOrderNo] = order;
}

BidContext BidLookups::context(std::string tmCode) const {
  BidContext c;
  c.tmCode = std::move(tmCode);
  if (!issues_.empty()) {
    c.issueBySymbol = [this](std::string_view symbol, std::string_view series) {
      auto it = bySymbol_.find(symbolKey(symbol, series));
      return it == bySymbol_.end() ? nullptr : it->second;
    };
    c.issueById = [this](std::string_view id) {
      auto it = byId_.find(id);
      return it == byId_.end() ? nullptr : it->second;
    };
  }
  if (!accounts_.empty()) {
    c.participantCodeOf = [this](std::string_view account) {
      auto it = accounts_.find(account);
      return it == accounts_.end() ? nullptr : &it->second;
    };
    c.knowsParticipantCode = [this](std::string_view pCode) { return pCodes_.contains(pCode); };
  }
  if (!orders_.empty()) {
    c.orderOf = [this](std::string_view number) {
      auto it = orders_.find(number);
      return it == orders_.end() ? nullptr : &it->second;
    };
  }
  return c;
}
