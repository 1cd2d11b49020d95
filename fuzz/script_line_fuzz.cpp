// Any bytes as lines of a terminal script: split into words or refused, and the words written
// back quoted split into the same words again.
#include <cstddef>
#include <cstdint>
#include <string>

#include "host/script_line.h"

namespace {

std::string quoted(const std::string& word) {
  std::string out = "\"";
  for (char c : word) {
    if (c == '"' || c == '\\') out += '\\';
    out += c;
  }
  return out + "\"";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  size_t start = 0;
  while (start <= text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    const auto words = splitScriptWords(text.substr(start, end - start));
    if (words) {
      std::string again;
      for (const std::string& w : *words) again += quoted(w) + " ";
      if (splitScriptWords(again) != words) __builtin_trap();
      for (const std::string& w : *words) parseFieldWord(w);
    }
    start = end + 1;
  }
  return 0;
}
