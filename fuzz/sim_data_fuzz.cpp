// Any bytes as the simulated exchange's data file: read or refused with a line number, never a
// crash; what is read holds only records with the fields the format requires.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "host/sim/data_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
  std::string error;
  const auto exchange = sim::readExchangeData(in, error);
  if (!exchange && error.rfind("line ", 0) != 0) __builtin_trap();
  if (exchange && !error.empty()) __builtin_trap();
  return 0;
}
