#include <gtest/gtest.h>

#include "issues/market_depth.h"
#include "issues/scrip_properties.h"
#include "issues/selected_issue.h"
#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "tests/support/fake_host.h"
#include "tests/support/field_text.h"
#include "tests/support/message_fixtures.h"

namespace {

class MarketDepthWindow : public testing::Test {
 protected:
  MarketDepthWindow() {
    initPlugin(host, host.app(), "U1", 3);
    host.state.events.clear();
    issue.exchange = "nse_ipo";
    issue.symbol = "ABC-RS";
  }
  ~MarketDepthWindow() override { exitPlugin(host); }
  void reply(const std::string& fields) {
    controlBlock()->OnResponse(makeMessage(fieldsOf(fields)).get());
  }

  FakeHost host;
  sOFSCol issue;
};

TEST_F(MarketDepthWindow, SubscribesOnceAndShowsTheLevelsOfItsIssueOnly) {
  issue.floorPrice = "120";
  issue.field54803 = "130.25";
  CMarketDepth depth(*controlBlock());
  depth.open(issue);
  EXPECT_EQ(host.state.events, (Lines{"subscribe 5 63001=\"nse_ipo\" 10100=\"ABC-RS\""}));
  EXPECT_EQ(depth.title(), "Market Depth - ABC-RS (NSEIPO)");
  EXPECT_EQ(depth.lastUpdate(), "NA");

  int repaints = 0;
  controlBlock()->onMarketDepthChanged = [&] { ++repaints; };
  reply(
      "32767=mrv_master 63001=nse_ipo 10100=ABC-RS 55000=12550 55500=40 56000=3 54283=90 "
      "63080=10:15:02");
  reply("32767=mrv_master 63001=nse_ipo 10100=OTHER-RS 55000=1");
  EXPECT_EQ(repaints, 1);
  const auto& levels = depth.levels();
  EXPECT_EQ((Lines{levels[0].price, levels[0].quantity, levels[0].bids, levels[1].price,
                   depth.totalBidQuantity(), depth.lastUpdate()}),
            (Lines{"125.50", "40", "3", "0.00", "90", "10:15:02"}));
  const DemandCurve demand = depth.demand();
  EXPECT_EQ(demand.points, (std::vector<DemandPoint>{{12550, 40}}));
  EXPECT_EQ(std::make_pair(demand.floorPaise, demand.indicativePaise),
            std::make_pair(std::optional<int64_t>(12000), std::optional<int64_t>(13025)));
  // The update handed the instrument to the host again: no second subscription.
  EXPECT_EQ(host.state.events.size(), 1u);

  depth.close();
  EXPECT_FALSE(depth.isOpen());
  EXPECT_EQ(static_cast<IssuesPort&>(*controlBlock()).marketDepthState(), nullptr);
  controlBlock()->onMarketDepthChanged = nullptr;
}

TEST_F(MarketDepthWindow, ClosingAnOlderWindowLeavesTheNewerOnesState) {
  CMarketDepth first(*controlBlock());
  CMarketDepth second(*controlBlock());
  first.open(issue);
  sOFSCol other = issue;
  other.symbol = "XYZ-RS";
  second.open(other);
  first.close();
  EXPECT_TRUE(second.isOpen());
}

TEST_F(MarketDepthWindow, SelectedIssueFollowsItsFeedOnlyWhenAskedAndWithTheWindowClosed) {
  issue.floorPrice = "120.00";
  issue.field54803 = "126";
  CSelectedIssue selected(*controlBlock());
  selected.show(&issue);
  EXPECT_FALSE(selected.followsBids());
  EXPECT_TRUE(host.state.events.empty());
  selected.followBids();
  selected.followBids();
  EXPECT_EQ(host.state.events, (Lines{"subscribe 5 63001=\"nse_ipo\" 10100=\"ABC-RS\""}));

  int repaints = 0;
  controlBlock()->onFeedDepthChanged = [&](const MarketDepthState& d) {
    repaints += selected.isDepthOf(d);
  };
  auto update = [&](const char* text) {
    controlBlock()->OnLiveUpdate(makeMessage(fieldsOf(text)).get());
  };
  update("63001=nse_ipo 10100=ABC-RS 55000=12550 55500=40 55001=12500 55501=60");
  update("63001=nse_ipo 10100=ABC-RS 55500=45");
  update("63001=bse_ipo 10100=ABC-RS 55500=99");
  EXPECT_EQ(repaints, 2);
  const DemandCurve curve = selected.demand();
  EXPECT_EQ(curve.points, (std::vector<DemandPoint>{{12550, 45}, {12500, 105}}));
  EXPECT_EQ(curve.floorPaise, 12000);
  EXPECT_EQ(curve.indicativePaise, 12600);
  EXPECT_EQ(selected.facts().at(10).label, "TBQ");
  EXPECT_EQ(selected.facts().at(10).value, "105");
  controlBlock()->onFeedDepthChanged = nullptr;
}

TEST(ScripProperties, ListsEveryPropertyWithReadableLabels) {
  sOFSCol issue;
  issue.symbol = "ABC-RS";
  issue.exchange = "bse_ipo";
  issue.biddingFlag = "N";
  issue.tickSize = 0.05;
  CScripProp props;
  props.show(issue);
  EXPECT_EQ(props.title(), "Scrip Properties - ABC-RS");
  auto value = [&](const std::string& label) {
    for (const auto& [l, v] : props.rows())
      if (l == label) return v;
    return std::string("<missing>");
  };
  EXPECT_EQ(value("Exchange"), "BSEIPO");
  EXPECT_EQ(value("Bidding Allowed"), "No");
  EXPECT_EQ(value("Tick Size"), "0.05");
  EXPECT_EQ(value("Underlying LTP"), "NA");
  EXPECT_EQ(props.rows().size(), 32u);
}

}  // namespace
