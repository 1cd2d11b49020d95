#include "host/sim/request_fields.h"

namespace sim {

std::string RequestFields::text(uint32_t id, uint32_t occurrence) const {
  otp_value value{};
  if (!msg_.find(id, occurrence, &value)) return {};
  return std::string(value.data, value.len);
}

SimFields RequestFields::all() const {
  SimFields fields;
  for (size_t i = 0; i < msg_.fieldCount(); ++i) {
    const otpx::Field field = msg_.fieldAt(i);
    if (field.id != 0) fields.emplace_back(field.id, std::string(field.value));
  }
  return fields;
}

}  // namespace sim
