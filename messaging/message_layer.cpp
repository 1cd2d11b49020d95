#include "messaging/message_layer.h"

#include <cstring>
#include <string>
#include <vector>

bool MessageLayer::fail(const Request& request, std::string_view step) {
  std::string text(request.prefix());
  text += step;
  prompt_->message(text);
  return false;
}

bool MessageLayer::transmit(const Request& request) {
  if (scratch_) {
    const uint32_t empty = 0;
    std::memcpy(scratch_, &empty, sizeof empty);
  }
  int err = 0;
  if (!ops_->startMsg(handle_, scratch_, &err)) return fail(request, "while starting message");

  otp_value name{request.name().data(), static_cast<uint32_t>(request.name().size())};
  if (!ops_->addData(handle_, 0, OTP_TYPE_TEXT, &name, &err))
    return fail(request, "while adding 0");
  for (size_t i = 0; i < request.size(); ++i) {
    const Request::Field& f = request[i];
    otp_value value{f.value.data(), static_cast<uint32_t>(f.value.size())};
    if (!ops_->addData(handle_, f.id, OTP_TYPE_TEXT, &value, &err))
      return fail(request, "while adding " + std::to_string(f.id));
  }

  IIrbeRxControl* control = controls_[static_cast<int>(request.control())];
  int result = 0;
  if (!control || !control->Send(&result, handle_, 0, &err))
    return fail(request, "while sending request");
  return true;
}

void MessageLayer::subscribe(Control which, std::span<const uint32_t> keys,
                             std::span<const std::string> values) const {
  IIrbeRxControl* control = controls_[static_cast<int>(which)];
  if (!control || keys.size() != values.size()) return;
  std::vector<otp_value> wireValues;
  wireValues.reserve(values.size());
  for (const std::string& v : values)
    wireValues.push_back({v.data(), static_cast<uint32_t>(v.size())});
  int result = 0;
  int err = 0;
  control->Subscribe(&result, keys.data(), wireValues.data(), static_cast<int>(keys.size()), 0, 0,
                     0, 1, &err);
}
