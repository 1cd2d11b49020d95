#include "messaging/text_format.h"

#include <cstdarg>
#include <cstdio>

std::string formatText(const char* format, ...) {
  va_list args;
  va_start(args, format);
  va_list again;
  va_copy(again, args);
  int length = std::vsnprintf(nullptr, 0, format, args);
  va_end(args);
  std::string text(length > 0 ? static_cast<size_t>(length) : 0, '\0');
  if (length > 0) std::vsnprintf(text.data(), text.size() + 1, format, again);
  va_end(again);
  return text;
}
