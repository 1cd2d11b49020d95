// Reading one request: texts by field id and occurrence, absent fields as empty texts.
#pragma once

#include <cstdint>
#include <string>

#include "connectvorn/connectvorn.h"
#include "host/sim/sim_message.h"

namespace sim {

class RequestFields {
 public:
  explicit RequestFields(const otp_message& msg) : msg_(msg) {}

  std::string name() const { return text(0); }
  bool has(uint32_t id) const { return msg_.occurrences(id) > 0; }
  uint32_t count(uint32_t id) const { return msg_.occurrences(id); }
  std::string text(uint32_t id, uint32_t occurrence = 0) const;
  // Every field but the name, in order.
  SimFields all() const;

 private:
  const otp_message& msg_;
};

}  // namespace sim
