// A message layer wired to a real scratch buffer and five recording receive controls
// (kinds 2, 0, 2, 3, 1, numbered 1 to 5) that share one transcript.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "messaging/message_layer.h"
#include "tests/support/fake_rx_control.h"
#include "tests/support/recording_prompt.h"

struct TestChannel {
  explicit TestChannel(const OtpOps& ops = connectvornOps());
  ~TestChannel();
  TestChannel(const TestChannel&) = delete;
  TestChannel& operator=(const TestChannel&) = delete;

  FakeRxControl& control(int number) { return controls[static_cast<size_t>(number - 1)]; }

  otp_scratch_t scratch = nullptr;
  otp_handle_t handle = nullptr;
  std::vector<std::string> transcript;
  RecordingPrompt prompt;
  std::array<FakeRxControl, 5> controls;
  MessageLayer layer;
};
