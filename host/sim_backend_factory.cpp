#include "host/sim_backend_factory.h"

std::unique_ptr<Backend> makeSimulatedExchange() {
  return nullptr;
}
