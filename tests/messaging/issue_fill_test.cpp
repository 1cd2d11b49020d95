#include <gtest/gtest.h>

#include "messaging/issue_fill.h"
#include "tests/support/field_text.h"
#include "tests/support/message_fixtures.h"
#include "tests/support/recording_prompt.h"

namespace {

TEST(IssueFill, MembersFromTheirFieldsWithNumericCopies) {
  auto message = makeMessage(
      fieldsOf("63032=I1 3=ABC 10610=Retail 49165=01/02/2026 79=03/02/2026 55=12 10062=2500000 "
               "10027=4 63005=0.05 10100=ABC-RS 54730=ABCEQ 54571=N 61362=Y"));
  sOFSCol issue;
  fillIssue(MessageView(connectvornOps(), message.get()), issue);
  EXPECT_EQ((Lines{issue.field3, issue.category, issue.field49165, issue.field79, issue.symbol,
                   issue.assetSymbol, issue.biddingFlag, issue.modifyCancelFlag,
                   std::to_string(issue.minQuantity), std::to_string(issue.issueSize),
                   issue.lotSizeText, std::to_string(issue.lotSize)}),
            (Lines{"ABC", "Retail", "01/02/2026", "03/02/2026", "ABC-RS", "ABCEQ", "N", "Y", "12",
                   "2500000.000000", "4", "4"}));
  EXPECT_DOUBLE_EQ(issue.tickSize, 0.05);
}

}  // namespace
