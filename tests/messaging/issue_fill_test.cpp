#include <gtest/gtest.h>

#include "messaging/issue_fill.h"
#include "tests/support/field_text.h"
#include "tests/support/message_fixtures.h"

namespace {

TEST(IssueFill, MembersFromTheirFieldsWithNumericCopies) {
  auto message = makeMessage(
      fieldsOf("63032=I1 3=ABC 10610=Retail 49165=01/02/2026 79=03/02/2026 55=12 10062=2500000 "
               "10027=4 63005=0.05 10100=ABC-RS 54730=ABCEQ 54571=N 61362=Y"));
  sOFSCol issue;
  fillIssue(MessageView(connectvornOps(), message.get()), issue);
  EXPECT_EQ(issue.field3, "ABC");
  EXPECT_EQ(issue.category, "Retail");
  EXPECT_EQ(issue.field49165, "01/02/2026");
  EXPECT_EQ(issue.field79, "03/02/2026");
  EXPECT_EQ(issue.symbol, "ABC-RS");
  EXPECT_EQ(issue.assetSymbol, "ABCEQ");
  EXPECT_EQ(issue.biddingFlag, "N");
  EXPECT_EQ(issue.modifyCancelFlag, "Y");
  EXPECT_EQ(issue.minQuantity, 12);
  EXPECT_EQ(issue.issueSize, 2500000.0);
  EXPECT_EQ(issue.lotSizeText, "4");
  EXPECT_EQ(issue.lotSize, 4);
  EXPECT_DOUBLE_EQ(issue.tickSize, 0.05);
}

}  // namespace
