#include "plugin/client_overview.h"

#include <thread>

#include "messaging/query_requests.h"
#include "plugin/control_block.h"

void subscribeAssignedClients(const MessageLayer& layer, const StringList& clients,
                              SubscriptionGate& gate, const std::function<void()>& pause,
                              const std::function<void(const std::string&)>& log) {
  size_t done = 0;
  for (const std::string& client : clients) {
    {
      std::lock_guard lock(gate.mutex);
      if (!gate.open) return;
      subscribeClientOverview(layer, client);
    }
    if (++done % 100 == 0) pause();
  }
  log("Subscribe on Client Overview done for: " + std::to_string(clients.size()) + " client");
}

void startClientOverview(COFSControlBlock& block) {
  const HostServiceTable& services = block.services;
  if (!services.isClientOverviewEnabled || !services.getAssignedClients) return;
  if (!services.isClientOverviewEnabled()) return;
  StringList clients;
  if (!services.getAssignedClients(clients)) return;
  // The worker keeps copies of what it needs: the block may be gone before it ends.
  MessageLayer layer = block.layer;
  pu_add_to_tabbed_log_fn addToLog = services.addToTabbedLog;
  std::shared_ptr<SubscriptionGate> gate = block.subscriptionGate;
  block.platform.startDetached([layer, clients = std::move(clients), addToLog, gate] {
    subscribeAssignedClients(
        layer, clients, *gate, [] { std::this_thread::sleep_for(std::chrono::milliseconds(10)); },
        [addToLog](const std::string& line) {
          if (addToLog) addToLog(line);
        });
  });
}
