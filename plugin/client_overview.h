// The subscriptions of the clients assigned to the user, made by a detached worker.
#pragma once

#include <chrono>
#include <functional>
#include <mutex>
#include <string>

#include "messaging/message_layer.h"
#include "sdk/host_services.h"

class COFSControlBlock;

// Lets the worker use the receive controls only while the plug-in runs: shutdown closes the
// gate before the controls are given back, and the worker stops at its next client.
struct SubscriptionGate {
  std::mutex mutex;
  bool open = true;

  void close() {
    std::lock_guard lock(mutex);
    open = false;
  }
};

// Starts the worker when the host has the client overview on and names the assigned clients.
void startClientOverview(COFSControlBlock& block);

// The worker's body: two subscriptions a client, a pause after every 100th client, one log line
// at the end. `pause` and `log` are the worker's only ways out besides the subscribe path. When
// the gate closes it stops without its log line.
void subscribeAssignedClients(const MessageLayer& layer, const StringList& clients,
                              SubscriptionGate& gate, const std::function<void()>& pause,
                              const std::function<void(const std::string&)>& log);
