// What the simulated exchange says: one message as its fields in order, and where it goes.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "sdk/rx_control.h"

namespace sim {

using SimFields = std::vector<std::pair<uint32_t, std::string>>;

struct Delivery {
  IIrbeNotifier* to = nullptr;
  bool live = false;  // OnLiveUpdate; otherwise OnResponse
  SimFields fields;
};

using Deliveries = std::vector<Delivery>;

// Field ids of the message envelope.
constexpr uint32_t kName = 32767;
constexpr uint32_t kStatus = 32766;
constexpr uint32_t kTag = 32760;

}  // namespace sim
