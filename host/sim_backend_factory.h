// The simulated exchange, when this build has one.
#pragma once

#include <memory>

#include "host/backend.h"

// Null when this build has no simulated exchange.
std::unique_ptr<Backend> makeSimulatedExchange();
