// Any bytes as a basket file: every piece read is either a row or a refusal, and a loaded row
// saved and read back gives the same line.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

#include "basket/basket_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  bytes.push_back('\0');  // fmemopen refuses a buffer of size 0
  std::FILE* file = fmemopen(bytes.data(), size == 0 ? 1 : size, "rb");
  if (!file) return 0;
  const BasketLoad load = readBasketFile(file, "U1");
  std::fclose(file);
  if (!load.opened || load.lines != int(load.rows.size() + load.refusals.size())) __builtin_trap();
  for (const sOFSPlaceOrder& row : load.rows) {
    sOFSPlaceOrder again;
    std::string message;
    const std::string line = basketLine(row);
    if (!readBasketLine("#" + line + "\n", "U1", again, message) || basketLine(again) != line)
      __builtin_trap();
  }
  return 0;
}
