#include <gtest/gtest.h>

#include "domain/issue_fill.h"
#include "tests/support/message_fixtures.h"

namespace {

TEST(IssueFill, EveryMemberFromItsFieldWithNumericCopies) {
  auto message = makeMessage({
      {63032, "I1"},         {63001, "bse_ipo"}, {3, "ABC"},
      {10610, "Retail"},     {63022, "100.50"},  {54079, "98"},
      {49165, "01/02/2026"}, {79, "03/02/2026"}, {55, "12"},
      {10062, "2500000"},    {10027, "4"},       {64211, "200000"},
      {63005, "0.05"},       {63059, "Y"},       {10100, "ABC-RS"},
      {49033, "Abc Ltd"},    {61002, "P"},       {54730, "ABCEQ"},
      {63023, "150"},        {54803, "120"},     {54571, "N"},
      {61362, "Y"},          {63017, "Z"},
  });
  sOFSCol issue;
  fillIssue(MessageView(connectvornOps(), message.get()), issue);
  EXPECT_EQ(issue.issueId, "I1");
  EXPECT_EQ(issue.exchange, "bse_ipo");
  EXPECT_EQ(issue.field3, "ABC");
  EXPECT_EQ(issue.category, "Retail");
  EXPECT_EQ(issue.floorPrice, "100.50");
  EXPECT_EQ(issue.field54079, "98");
  EXPECT_EQ(issue.field49165, "01/02/2026");
  EXPECT_EQ(issue.field79, "03/02/2026");
  EXPECT_EQ(issue.hniLimit, "200000");
  EXPECT_EQ(issue.field63059, "Y");
  EXPECT_EQ(issue.symbol, "ABC-RS");
  EXPECT_EQ(issue.field49033, "Abc Ltd");
  EXPECT_EQ(issue.field61002, "P");
  EXPECT_EQ(issue.assetSymbol, "ABCEQ");
  EXPECT_EQ(issue.field63023, "150");
  EXPECT_EQ(issue.field54803, "120");
  EXPECT_EQ(issue.biddingFlag, "N");
  EXPECT_EQ(issue.modifyCancelFlag, "Y");
  EXPECT_EQ(issue.field63017, "Z");
  EXPECT_EQ(issue.minQuantity, 12);
  EXPECT_EQ(issue.issueSize, 2500000.0);
  EXPECT_EQ(issue.lotSizeText, "4");
  EXPECT_EQ(issue.lotSize, 4);
  EXPECT_DOUBLE_EQ(issue.tickSize, 0.05);
  EXPECT_EQ(issue.asset, nullptr);
}

}  // namespace
