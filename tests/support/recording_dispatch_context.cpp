#include "tests/support/recording_dispatch_context.h"

std::vector<std::string> RecordingDispatchContext::orderNumbers(const BookList& list) {
  std::vector<std::string> numbers;
  for (size_t row = 0; row < list.rowCount(); ++row) numbers.push_back(list.rowAt(row)->ofsOrderNo);
  return numbers;
}
