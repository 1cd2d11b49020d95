#include "host/sim_backend_factory.h"

#include <iostream>

#include "host/sim/qt_sim_backend.h"

std::unique_ptr<Backend> makeSimulatedExchange() {
  std::string error;
  auto backend = makeQtSimBackend(error);
  if (!backend) std::cerr << "vorntrader: simulated exchange: " << error << "\n";
  return backend;
}
