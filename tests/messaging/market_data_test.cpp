#include <gtest/gtest.h>

#include "tests/support/recording_dispatch_context.h"

#include "tests/support/field_text.h"

namespace {

class MarketData : public testing::Test {
 protected:
  MarketData() {
    context.depth = MarketDepthState{"nse_ipo", "ABC-RS", "10:00", {}, 500};
    context.depth->levels[1] = {100, 50, 2};
  }
  RecordingDispatchContext context;
};

TEST_F(MarketData, DepthReplyFillsLevelsAndAddsTheQuantityChangeToTbq) {
  context.respond(
      fieldsOf("32767=mrv_master 63001=nse_ipo 10100=ABC-RS 55000=120 55500=30 56000=1 55501=70"));
  const MarketDepthState& d = *context.depth;
  EXPECT_EQ(d.lastUpdate, "NA");
  // The second level's price and bids are not in the message: unchanged.
  EXPECT_EQ((std::vector<int64_t>{d.levels[0].price, d.levels[1].price, d.levels[1].quantity,
                                  d.levels[1].bids, d.totalBidQuantity}),
            (std::vector<int64_t>{120, 100, 70, 2, 550}));
  EXPECT_EQ(context.events, (Lines{"depth changed", "host gets nse_ipo ABC-RS"}));
}

TEST_F(MarketData, LiveDepthKeepsTheTimeWhenEmptyAndTakesTbqWhenGiven) {
  context.update(fieldsOf("63001=nse_ipo 10100=ABC-RS 63080= 54283=900 55500=99"));
  EXPECT_EQ(context.depth->lastUpdate, "10:00");
  EXPECT_EQ(context.depth->totalBidQuantity, 900);
}

TEST_F(MarketData, DepthOfAnotherInstrumentOrWithTwoTagsIsIgnored) {
  for (const char* other : {"63001=nse_ipo 10100=XYZ-RS", "63001=bse_ipo 10100=ABC-RS",
                            "63001=nse_ipo 10100=ABC-RS 32760=a 32760=b", "10100=ABC-RS"})
    context.respond(fieldsOf("32767=mrv_master " + std::string(other) + " 55000=1"));
  EXPECT_EQ(context.depth->levels[0].price, 0);
  EXPECT_TRUE(context.events.empty());
}

TEST_F(MarketData, ASubscribedFeedKeepsItsDepthWhateverTheWindowShows) {
  context.kept = MarketDepthState{"bse_ipo", "XYZ-RS", "NA", {}, 0};
  context.respond(
      fieldsOf("32767=mrv_master 63001=bse_ipo 10100=XYZ-RS 55000=40100 55500=25 "
               "56000=2 55001=40000 55501=10 63080=10:15:02"));
  context.update(fieldsOf("63001=bse_ipo 10100=XYZ-RS 63080= 55500=30"));
  const MarketDepthState& kept = *context.kept;
  EXPECT_EQ((std::vector<int64_t>{kept.levels[0].price, kept.levels[0].quantity,
                                  kept.levels[1].quantity, kept.totalBidQuantity}),
            (std::vector<int64_t>{40100, 30, 10, 40}));
  EXPECT_EQ(kept.lastUpdate, "10:15:02");
  EXPECT_EQ(context.depth->levels[0].price, 0);
  EXPECT_EQ(context.events, (Lines{"feed depth changed XYZ-RS", "feed depth changed XYZ-RS"}));
}

TEST_F(MarketData, AssetPriceUsesTwoDecimalsByDefaultAndIsShownOnce) {
  context.store.assets["nse_cm|ABC"] = std::make_unique<sAssetInfo>();
  const FieldList reply =
      fieldsOf("32767=mrv_master 63001=nse_cm 10100=ABC 6=12345 32760=Asset LTP");
  context.respond(reply);
  const sAssetInfo& asset = *context.store.assets["nse_cm|ABC"];
  EXPECT_EQ((std::vector<double>{1.0 * asset.ltp, 1.0 * asset.decimals, asset.divisor}),
            (std::vector<double>{12345, 2, 100}));
  context.update(fieldsOf("63001=nse_cm 10100=ABC 6=1234567 63050=4"));
  EXPECT_EQ((std::vector<double>{1.0 * asset.ltp, asset.divisor}),
            (std::vector<double>{1234567, 10000}));
  context.respond(reply);
  EXPECT_EQ(asset.decimals, 2);
  EXPECT_EQ(context.events, (Lines{"asset shown nse_cm ABC"}));
}

}  // namespace
