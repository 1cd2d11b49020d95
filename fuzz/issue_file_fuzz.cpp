// Any bytes as an issue file: refusals come in line order within the records counted, and an
// accepted issue written back and read again is accepted and written the same way, so an
// exported list always uploads again.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

#include "issues/issue_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  bytes.push_back('\0');  // fmemopen refuses a buffer of size 0
  std::FILE* file = fmemopen(bytes.data(), size == 0 ? 1 : size, "rb");
  if (!file) return 0;
  const IssueFileRead read = readIssueFile(file, std::nullopt);
  std::fclose(file);
  if (!read.opened) __builtin_trap();
  if (read.issues.size() + read.refusals.size() > static_cast<size_t>(read.records))
    __builtin_trap();
  int last = 0;
  for (const IssueFileRefusal& refusal : read.refusals) {
    if (refusal.number <= last || refusal.line > refusal.number + 1) __builtin_trap();
    last = refusal.number;
  }
  for (const sOFSCol& issue : read.issues) {
    const std::string line = issueFileLineOf(issue);
    sOFSCol again;
    std::string message;
    if (!readIssueFileLine(line + "\n", std::nullopt, again, message)) __builtin_trap();
    if (issueFileLineOf(again) != line) __builtin_trap();
  }
  return 0;
}
