#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "messaging/issue_admin_requests.h"
#include "tests/support/field_text.h"
#include "tests/support/test_channel.h"

namespace {

// An issue with only the texts every issue has: the optional ones stay out of the request,
// the three that are always sent go out empty.
sOFSCol sparseIssue() {
  sOFSCol issue;
  issue.exchange = "bse_ipo";
  issue.field3 = "XYZ";
  issue.symbol = "XYZ-Retail";
  issue.minQuantity = 1;
  issue.issueSize = 2500000.4;
  issue.lotSize = 1;
  issue.tickSize = 0.25;
  return issue;
}

TEST(AddIssueRequest, EndTagFollowsTheTwoFlags) {
  const char* kBody =
      "63001=bse_ipo 3=XYZ 55=1 10062=2500000 10027=1 12019= 12020= 63005=0.25 "
      "10100=XYZ-Retail 54730= 32760=XYZ";
  const std::tuple<uint64_t, uint64_t, const char*> flags[] = {
      {0, 0, " 32760=Normal End"}, {1, 1, " 32760=Upload End"}, {1, 0, ""}, {0, 7, ""}};
  for (const auto& [upload, last, end] : flags) {
    TestChannel channel;
    EXPECT_EQ(requestAddIssue(channel.layer, sparseIssue(), upload, last), 1);
    EXPECT_EQ(channel.transcript,
              (Lines{wireLine("send 2 om_add_ofs_issue", std::string(kBody) + end)}))
        << upload << " " << last;
  }
}

TEST(AddIssueRequest, TagJoinsSymbolNameAndSeries) {
  TestChannel channel;
  sOFSCol issue = sparseIssue();
  issue.category = "Retail";
  requestAddIssue(channel.layer, issue, 1, 0);
  EXPECT_THAT(channel.transcript,
              testing::ElementsAre(testing::AllOf(testing::HasSubstr(" 10610=\"Retail\" "),
                                                  testing::EndsWith(" 32760=\"XYZ-Retail\""))));
}

TEST(AllotmentRequest, ClientFieldFollowsTheExchange) {
  sOFSAllotmentRow row;
  row.symbol = "ABC";
  row.orderNo = "9001";
  row.client = "A1";
  row.ucc = "U77";
  row.allottedQuantity = "40";
  row.bidPrice = "10500";
  row.allottedPrice = "10400";
  for (const auto& [exchange, client] : {std::pair{"bse_ipo", "U77"}, {"nse_ipo", "A1"}}) {
    TestChannel channel;
    EXPECT_EQ(requestAllotment(channel.layer, row, exchange), 1);
    EXPECT_EQ(channel.transcript,
              (Lines{wireLine(
                  "send 2 om_ofs_allotment",
                  std::string("63001=") + exchange + " 3=ABC 49238=9001 54001=" + client +
                      " 12004=40 10306=10500 10308=40 10307=10400 " + "20001=fill 12003=B")}));
  }
}

}  // namespace
