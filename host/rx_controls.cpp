#include "host/rx_controls.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QThread>
#include <algorithm>

#include "host/transcript.h"

int HostRxControl::Send(int* result, otp_handle_t handle, int, int* err) {
  auto msg = otp_message::decode(otpx::currentMessage(handle), err);
  if (!msg) return 0;
  std::vector<otpx::Field> fields;
  for (size_t i = 0; i < msg->fieldCount(); ++i) fields.push_back(msg->fieldAt(i));
  transcript().line(otpx::renderLine("send", number_, fields));
  if (Backend* backend = rxControls().backend()) backend->request(number_, *msg, notifier_);
  if (result) *result = 1;
  if (err) *err = OTP_OK;
  return 1;
}

int HostRxControl::Subscribe(int* result, const uint32_t* keys, const otp_value* values, int count,
                             int, int, int, int, int* err) {
  KeyValues pairs;
  std::vector<otpx::Field> fields;
  for (int i = 0; i < count; ++i) {
    pairs.emplace_back(keys[i], std::string(values[i].data, values[i].len));
    fields.push_back({keys[i], std::string_view(values[i].data, values[i].len)});
  }
  const std::string line = otpx::renderLine("subscribe", number_, fields);
  // The subscription worker calls this off the UI thread; the record and the back end's
  // registration happen on the UI thread, in the order the calls were made.
  auto record = [line, pairs, number = number_, notifier = notifier_] {
    transcript().line(line);
    if (Backend* backend = rxControls().backend()) backend->subscribe(number, pairs, notifier);
  };
  QCoreApplication* app = QCoreApplication::instance();
  if (app && QThread::currentThread() != app->thread()) {
    QMetaObject::invokeMethod(app, record, Qt::QueuedConnection);
  } else {
    record();
  }
  if (result) *result = 1;
  if (err) *err = OTP_OK;
  return 1;
}

HostRxControl* RxControls::create(int kind, IIrbeNotifier* notifier) {
  controls_.push_back(
      std::make_unique<HostRxControl>(kind, static_cast<int>(controls_.size()) + 1, notifier));
  return controls_.back().get();
}

void RxControls::destroy(IIrbeRxControl* control) {
  auto it = std::find_if(controls_.begin(), controls_.end(),
                         [control](const auto& c) { return c.get() == control; });
  if (it == controls_.end()) return;
  controls_.erase(it);
  // Numbers stay 1..n in the order the remaining controls were obtained.
  for (size_t i = 0; i < controls_.size(); ++i) controls_[i]->setNumber(static_cast<int>(i) + 1);
}

IIrbeNotifier* RxControls::notifier() const {
  return controls_.empty() ? nullptr : controls_.front()->notifier();
}

RxControls& rxControls() {
  static RxControls controls;
  return controls;
}
