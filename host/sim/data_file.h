// Reading the simulated exchange's data file (the format is described at the top of
// host/sim/exchange.txt).
#pragma once

#include <istream>
#include <optional>
#include <string>

#include "host/sim/sim_data.h"

namespace sim {

// Nullopt, with `error` as "line N: what is wrong", when a line is not understood.
std::optional<ExchangeData> readExchangeData(std::istream& in, std::string& error);
std::optional<ExchangeData> readExchangeFile(const std::string& path, std::string& error);

}  // namespace sim
