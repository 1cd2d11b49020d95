// A receive control that records what was sent through it as transcript-style lines.
#pragma once

#include <string>
#include <vector>

#include "sdk/rx_control.h"

class FakeRxControl : public IIrbeRxControl {
 public:
  // Lines go to `sink` too when given, so several controls can share one transcript.
  explicit FakeRxControl(int kind = 2, int number = 1, std::vector<std::string>* sink = nullptr)
      : kind_(kind), number_(number), sink_(sink) {}

  int Kind() const override { return kind_; }
  int Send(int* result, otp_handle_t handle, int reserved, int* err) override;
  int Subscribe(int* result, const uint32_t* keys, const otp_value* values, int count, int, int,
                int, int one, int* err) override;

  void failSends(bool fail) { failSends_ = fail; }
  // `send N name id="v" ...` and `subscribe N id="v" ...`, as the headless transcript shows.
  const std::vector<std::string>& lines() const { return lines_; }

 private:
  int kind_;
  int number_;
  std::vector<std::string>* sink_;
  bool failSends_ = false;
  void record(std::string line);
  std::vector<std::string> lines_;
};
