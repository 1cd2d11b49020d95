#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "messaging/message_layer.h"
#include "tests/support/fake_rx_control.h"
#include "tests/support/recording_prompt.h"
#include "tests/support/scripted_otp.h"

namespace {

class SendingProcedure : public testing::Test {
 protected:
  SendingProcedure() : layer(otp.ops(), prompt) {
    int err = 0;
    otp_open_scratch(&scratch, 32768, &err);
    otp_ctor_primecb(&handle, &err);
    layer.setHandles(handle, scratch);
    layer.setControl(Control::First, &first);
    layer.setControl(Control::Second, &second);
  }
  ~SendingProcedure() override {
    int err = 0;
    otp_dtor_primecb(&handle, &err);
    otp_close_scratch(&scratch, &err, 0);
  }
  static Request issueList() {
    Request r("om_get_ofs_issues", "om_get_ofs_issues is failed , ", Control::Second);
    r.add(63001, "nse_ipo").add(53065, "A");
    return r;
  }

  ScriptedOtp otp;
  RecordingPrompt prompt;
  FakeRxControl first{2, 1};
  FakeRxControl second{0, 2};
  MessageLayer layer;
  otp_scratch_t scratch = nullptr;
  otp_handle_t handle = nullptr;
};

// Order builders answer 0 on success where the others answer 1.
TEST_F(SendingProcedure, SendsNameThenFieldsInOrderThroughTheNamedControl) {
  EXPECT_EQ(layer.send(issueList()), 1);
  EXPECT_EQ(layer.sendOrder(Request("om_get_ofs_category", "", Control::Second)), 0);
  EXPECT_TRUE(prompt.messages().empty());
  EXPECT_TRUE(first.lines().empty());
  EXPECT_EQ(second.lines(), (Lines{"send 2 om_get_ofs_issues 63001=\"nse_ipo\" 53065=\"A\"",
                                   "send 2 om_get_ofs_category"}));
}

// One buffer serves every request: were it not emptied first, the second would not fit.
TEST_F(SendingProcedure, EachRequestStartsFromAnEmptyBuffer) {
  const std::string big(20000, '7');
  Request r("om_filter_order_ofs", "om_filter_order_ofs is failed , ", Control::Second);
  r.add(64001, big);
  EXPECT_EQ(layer.send(r), 1);
  EXPECT_EQ(layer.send(r), 1);
  EXPECT_TRUE(prompt.messages().empty());
  EXPECT_EQ(second.lines().size(), 2u);
}

struct FailureCase {
  const char* name;
  bool failStart;
  int failAddAt;
  bool failSend;
  const char* text;
  size_t addsAttempted;
  friend void PrintTo(const FailureCase& c, std::ostream* os) { *os << c.name; }
};

class SendingFailure : public SendingProcedure, public testing::WithParamInterface<FailureCase> {};

TEST_P(SendingFailure, ShowsPrefixAndStepSendsNothingAndReturnsTheContractValue) {
  const FailureCase& c = GetParam();
  otp.failStart = c.failStart;
  otp.failAddAt = c.failAddAt;
  second.failSends(c.failSend);

  EXPECT_EQ(layer.send(issueList()), 1);
  EXPECT_EQ(prompt.messages(), (Lines{c.text}));
  EXPECT_EQ(otp.added.size(), c.addsAttempted);
  EXPECT_TRUE(second.lines().empty());

  prompt.clear();
  otp.added.clear();
  EXPECT_EQ(layer.sendOrder(issueList()), 1);
  EXPECT_EQ(prompt.messages(), (Lines{c.text}));
}

INSTANTIATE_TEST_SUITE_P(
    Steps, SendingFailure,
    testing::Values(FailureCase{"start", true, -1, false,
                                "om_get_ofs_issues is failed , while starting message", 0},
                    FailureCase{"name", false, 0, false,
                                "om_get_ofs_issues is failed , while adding 0", 1},
                    FailureCase{"first_field", false, 1, false,
                                "om_get_ofs_issues is failed , while adding 63001", 2},
                    FailureCase{"second_field", false, 2, false,
                                "om_get_ofs_issues is failed , while adding 53065", 3},
                    FailureCase{"send", false, -1, true,
                                "om_get_ofs_issues is failed , while sending request", 3}),
    [](const auto& info) { return info.param.name; });

TEST_F(SendingProcedure, NoControlFailsAtTheSendStep) {
  Request r("om_get_acct_info", "om_get_acct_info is failed , ", Control::Fourth);
  EXPECT_EQ(layer.sendOrder(r), 1);
  EXPECT_EQ(prompt.messages(), (Lines{"om_get_acct_info is failed , while sending request"}));
}

TEST(SendingWithoutHandles, EveryRequestFailsAtTheStartStep) {
  RecordingPrompt prompt;
  FakeRxControl control;
  MessageLayer layer(connectvornOps(), prompt);
  layer.setControl(Control::First, &control);
  Request r("om_filter_order_ofs", "om_filter_order_ofs is failed , ", Control::First);
  r.add(64001, "17");
  EXPECT_EQ(layer.send(r), 1);
  EXPECT_EQ(prompt.messages(), (Lines{"om_filter_order_ofs is failed , while starting message"}));
  EXPECT_TRUE(control.lines().empty());
}

}  // namespace
