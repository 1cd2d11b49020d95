#include "host/sim/qt_sim_backend.h"

#include <QTimer>
#include <ctime>

#include "host/host_state.h"
#include "host/rx_controls.h"
#include "host/sim/data_file.h"

namespace {

int64_t terminalClock() {
  std::lock_guard lock(hostState().mutex);
  return hostState().clock ? *hostState().clock : static_cast<int64_t>(std::time(nullptr));
}

std::optional<std::string> terminalAccount(const std::string& id) {
  std::lock_guard lock(hostState().mutex);
  auto it = hostState().pcodes.find(id);
  if (it == hostState().pcodes.end()) return std::nullopt;
  return it->second;
}

std::unique_ptr<otp_message> buildMessage(const sim::SimFields& fields) {
  std::vector<otpx::Field> views;
  for (const auto& [id, value] : fields) views.push_back({id, value});
  return otp_message::build(views);
}

}  // namespace

QtSimBackend::QtSimBackend(sim::ExchangeData data)
    : exchange_(std::move(data), {terminalClock, terminalAccount}) {}

void QtSimBackend::request(int, const otp_message& msg, IIrbeNotifier* notifier) {
  deliver(exchange_.request(msg, notifier));
}

void QtSimBackend::subscribe(int, const KeyValues& keys, IIrbeNotifier* notifier) {
  deliver(exchange_.subscribe(keys, notifier));
}

void QtSimBackend::deliver(sim::Deliveries deliveries) {
  auto batch = std::make_shared<sim::Deliveries>(std::move(deliveries));
  QTimer::singleShot(0, &context_, [this, batch] {
    for (const sim::Delivery& d : *batch) {
      // The plug-in's controls share one notifier; once they are gone, so is it.
      if (!d.to || d.to != rxControls().notifier()) {
        exchange_.forget(d.to);
        continue;
      }
      auto msg = buildMessage(d.fields);
      if (d.live) {
        d.to->OnLiveUpdate(msg.get());
      } else {
        d.to->OnResponse(msg.get());
      }
    }
  });
}

std::unique_ptr<Backend> makeQtSimBackend(std::string& error) {
  const QByteArray override = qgetenv("VORN_SIM_EXCHANGE");
  const std::string path = override.isEmpty() ? VORN_SIM_EXCHANGE_FILE : override.toStdString();
  auto data = sim::readExchangeFile(path, error);
  if (!data) return nullptr;
  return std::make_unique<QtSimBackend>(std::move(*data));
}
