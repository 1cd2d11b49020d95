#include "issues/selected_issue.h"

#include "domain/exchange_names.h"
#include "issues/watch_columns.h"

namespace {

// Open Date, Close Date, Floor Price, Indicative Price, Ceiling Price, Tick Size, Lot Size,
// Series, CutOff, Underlying LTP.
constexpr int kFactColumns[] = {1, 2, 5, 15, 14, 4, 12, 8, 10, 16};

}  // namespace

std::string CSelectedIssue::heading() const {
  if (!issue_) return "No issue selected";
  const std::string instrument = issue_->symbol + " (" + exchangeScreenName(issue_->exchange) + ")";
  return issue_->field49033.empty() ? instrument : issue_->field49033 + " - " + instrument;
}

std::vector<CSelectedIssue::Fact> CSelectedIssue::facts() const {
  std::vector<Fact> facts;
  if (!issue_) return facts;
  for (int column : kFactColumns)
    facts.push_back(
        {watchColumns()[static_cast<size_t>(column)].name, watchColumnText(issue_, column, "-")});
  const MarketDepthState* kept = depth();
  facts.push_back({"TBQ", kept ? std::to_string(kept->totalBidQuantity) : "-"});
  facts.push_back({"Last Update", kept ? kept->lastUpdate : "-"});
  return facts;
}

bool CSelectedIssue::followsBids() const {
  return depth() != nullptr;
}

void CSelectedIssue::followBids() {
  if (issue_) port_.ensurePriceFeed(issue_->exchange, issue_->symbol);
}

bool CSelectedIssue::isDepthOf(const MarketDepthState& kept) const {
  return issue_ && kept.exchange == issue_->exchange && kept.symbol == issue_->symbol;
}

DemandCurve CSelectedIssue::demand() const {
  if (!issue_) return {};
  const MarketDepthState* kept = depth();
  return demandCurve(
      kept ? std::span<const MarketDepthLevel>(kept->levels) : std::span<const MarketDepthLevel>(),
      issue_->floorPrice, issue_->field54803);
}

const MarketDepthState* CSelectedIssue::depth() const {
  return issue_ ? port_.feedDepthOf(issue_->exchange, issue_->symbol) : nullptr;
}
