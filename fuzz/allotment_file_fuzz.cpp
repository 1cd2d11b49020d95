// Any bytes as an allotment file of either layout: every line read is either accepted or
// refused, line numbers never go back, and an accepted line carries its exchange and whole
// paise.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "domain/char_classes.h"
#include "issues/allotment_file.h"

namespace {

// A whole number as "%lld" writes it.
bool isPaise(std::string_view text) {
  if (!text.empty() && text.front() == '-') text.remove_prefix(1);
  return !text.empty() && isDigits(text);
}

void readAs(std::string& bytes, size_t size, AllotmentLayout layout) {
  std::FILE* file = fmemopen(bytes.data(), size == 0 ? 1 : size, "rb");
  if (!file) return;
  int last = 1;
  const bool read = readAllotmentFile(file, layout, [&](AllotmentLine& line) {
    if (line.line < last) __builtin_trap();
    last = line.line;
    if (!line.message.empty()) return;
    const sOFSAllotmentRow& row = line.row;
    if (row.exchange != allotmentExchangeKey(layout) || !isPaise(row.bidPrice) ||
        !isPaise(row.allottedPrice) || row.symbol.empty() || !isDigits(row.allottedQuantity))
      __builtin_trap();
  });
  std::fclose(file);
  if (!read) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  bytes.push_back('\0');  // fmemopen refuses a buffer of size 0
  readAs(bytes, size, AllotmentLayout::Nse);
  readAs(bytes, size, AllotmentLayout::Bse);
  return 0;
}
