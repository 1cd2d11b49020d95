// The small "Order History" prompt: the user types an order number and the history of that
// order opens.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "domain/prompt_port.h"

class CVornOrderNo {
 public:
  using OpenHistory = std::function<void(const std::string& orderNo)>;
  CVornOrderNo(PromptPort& prompt, OpenHistory openHistory)
      : prompt_(prompt), openHistory_(std::move(openHistory)) {}

  // Order numbers are digits only: anything else typed is left out.
  void setOrderNo(const std::string& typed);
  const std::string& orderNo() const { return orderNo_; }
  // Opens the history of the typed number; false (after saying why) when nothing was typed,
  // and the prompt stays open.
  bool ok();

 private:
  PromptPort& prompt_;
  OpenHistory openHistory_;
  std::string orderNo_;
};
