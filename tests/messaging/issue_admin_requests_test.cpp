#include <gtest/gtest.h>

#include "messaging/issue_admin_requests.h"
#include "tests/support/field_text.h"
#include "tests/support/record_with.h"
#include "tests/support/test_channel.h"

namespace {

// An issue with only the texts every issue has: the optional ones stay out of the request,
// the three that are always sent go out empty.
const sOFSCol kSparse =
    with(sOFSCol{}, &sOFSCol::exchange, "bse_ipo", &sOFSCol::field3, "XYZ", &sOFSCol::symbol,
         "XYZ-Retail", &sOFSCol::minQuantity, int64_t{1}, &sOFSCol::issueSize, 2500000.4,
         &sOFSCol::lotSize, int64_t{1}, &sOFSCol::tickSize, 0.25);

TEST(AddIssueRequest, EndTagFollowsTheTwoFlags) {
  const char* kBody =
      "63001=bse_ipo 3=XYZ 55=1 10062=2500000 10027=1 12019= 12020= 63005=0.25 "
      "10100=XYZ-Retail 54730= 32760=XYZ";
  const std::tuple<uint64_t, uint64_t, const char*> flags[] = {
      {0, 0, " 32760=Normal End"}, {1, 1, " 32760=Upload End"}, {1, 0, ""}, {0, 7, ""}};
  for (const auto& [upload, last, end] : flags) {
    TestChannel channel;
    EXPECT_EQ(requestAddIssue(channel.layer, kSparse, upload, last), 1);
    EXPECT_EQ(channel.transcript,
              (Lines{wireLine("send 2 om_add_ofs_issue", std::string(kBody) + end)}))
        << upload << " " << last;
  }
}

}  // namespace
