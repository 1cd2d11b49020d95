// Building received messages for tests from `id=value` pairs.
#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "connectvorn/connectvorn.h"

using FieldList = std::vector<std::pair<uint32_t, std::string>>;

inline std::unique_ptr<otp_message> makeMessage(const FieldList& fields) {
  std::vector<otpx::Field> views;
  for (const auto& [id, value] : fields) views.push_back({id, value});
  return otp_message::build(views);
}
