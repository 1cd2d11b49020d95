#include <gtest/gtest.h>

#include <string>

#include "messaging/message_layer.h"
#include "tests/support/scripted_otp.h"
#include "tests/support/test_channel.h"

namespace {

class SendingProcedure : public testing::Test {
 protected:
  static Request issueList() {
    Request r("om_get_ofs_issues", "om_get_ofs_issues is failed , ", Control::Second);
    r.add(63001, "nse_ipo").add(53065, "A");
    return r;
  }
  const Lines& shown() const { return channel.prompt.messages(); }

  ScriptedOtp otp;
  TestChannel channel{otp.ops()};
};

// Order builders answer 0 on success where the others answer 1.
TEST_F(SendingProcedure, SendsNameThenFieldsInOrderThroughTheNamedControl) {
  EXPECT_EQ(channel.layer.send(issueList()), 1);
  EXPECT_EQ(channel.layer.sendOrder(Request("om_get_ofs_category", "", Control::Second)), 0);
  EXPECT_TRUE(shown().empty());
  EXPECT_EQ(channel.transcript, (Lines{"send 2 om_get_ofs_issues 63001=\"nse_ipo\" 53065=\"A\"",
                                       "send 2 om_get_ofs_category"}));
}

// One buffer serves every request: were it not emptied first, the second would not fit.
TEST_F(SendingProcedure, EachRequestStartsFromAnEmptyBuffer) {
  const std::string big(20000, '7');  // a request holds views of its values
  Request r("om_filter_order_ofs", "om_filter_order_ofs is failed , ", Control::Second);
  r.add(64001, big);
  EXPECT_EQ(channel.layer.send(r) + channel.layer.send(r), 2);
  EXPECT_TRUE(shown().empty());
  EXPECT_EQ(channel.transcript.size(), 2u);
}

struct FailureCase {
  const char* name;
  bool failStart;
  int failAddAt;
  bool failSend;
  const char* step;
  size_t addsAttempted;
  friend void PrintTo(const FailureCase& c, std::ostream* os) { *os << c.name; }
};

class SendingFailure : public SendingProcedure, public testing::WithParamInterface<FailureCase> {};

TEST_P(SendingFailure, ShowsPrefixAndStepSendsNothingAndReturnsTheContractValue) {
  const FailureCase& c = GetParam();
  otp.failStart = c.failStart;
  otp.failAddAt = c.failAddAt;
  channel.control(2).failSends(c.failSend);
  const Lines failure{std::string("om_get_ofs_issues is failed , ") + c.step};
  EXPECT_EQ(channel.layer.send(issueList()), 1);
  EXPECT_EQ(shown(), failure);
  EXPECT_EQ(otp.added.size(), c.addsAttempted);
  EXPECT_TRUE(channel.transcript.empty());
  channel.prompt.clear();
  otp.added.clear();
  EXPECT_EQ(channel.layer.sendOrder(issueList()), 1);
  EXPECT_EQ(shown(), failure);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, SendingFailure,
    testing::Values(FailureCase{"start", true, -1, false, "while starting message", 0},
                    FailureCase{"name", false, 0, false, "while adding 0", 1},
                    FailureCase{"first_field", false, 1, false, "while adding 63001", 2},
                    FailureCase{"second_field", false, 2, false, "while adding 53065", 3},
                    FailureCase{"send", false, -1, true, "while sending request", 3}));

TEST_F(SendingProcedure, NoControlFailsAtTheSendStepAndNoHandlesAtTheStartStep) {
  channel.layer.setControl(Control::Fourth, nullptr);
  Request r("om_get_acct_info", "om_get_acct_info is failed , ", Control::Fourth);
  EXPECT_EQ(channel.layer.sendOrder(r), 1);
  channel.layer.setHandles(nullptr, nullptr);
  EXPECT_EQ(channel.layer.send(issueList()), 1);
  EXPECT_EQ(shown(), (Lines{"om_get_acct_info is failed , while sending request",
                            "om_get_ofs_issues is failed , while starting message"}));
  EXPECT_TRUE(channel.transcript.empty());
}

}  // namespace
