#include "domain/date_text.h"

#include <algorithm>
#include <cstring>
#include <ctime>
#include <iomanip>
#include <locale>
#include <sstream>

namespace {

constexpr const char* kStyles[] = {"%d%b%Y", "%d%b%Y",   "%d",       "%d%b",     "%d%b",
                                   "%x",     "%d-%m-%Y", "%d/%m/%Y", "%d/%b/%Y", "%d-%b-%Y"};
constexpr int kStyleCount = 10;
constexpr size_t kMaxTimeText = 49;

bool isCapitalStyle(int style) {
  return style == 1 || style == 4;
}

std::string toUpperAscii(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

void copyInto(const std::string& text, char* buffer, size_t size) {
  if (size == 0) return;
  size_t length = std::min(text.size(), size - 1);
  std::memcpy(buffer, text.data(), length);
  buffer[length] = '\0';
}

}  // namespace

// The classic locale on the stream only: nothing global is read or changed for the names.
std::string localTimeText(int64_t time, const char* format) {
  std::time_t seconds = time;
  std::tm* local = std::localtime(&seconds);
  if (local == nullptr) return {};
  std::ostringstream out;
  out.imbue(std::locale::classic());
  out << std::put_time(local, format);
  return out.str();
}

std::string dateText(int32_t time, int style) {
  if (style < 0 || style >= kStyleCount) return {};
  std::string text = localTimeText(time, kStyles[style]);
  return isCapitalStyle(style) ? toUpperAscii(text) : text;
}

std::string timeText(int32_t time) {
  if (time < 1) return {};
  return localTimeText(time, "%d%b%Y %H:%M:%S").substr(0, kMaxTimeText);
}

int formatDateText(char* buffer, size_t size, int32_t time, int style) {
  std::memset(buffer, 0, std::min<size_t>(size, 8));
  copyInto(dateText(time, style), buffer, size);
  return 1;
}

int formatTimeText(int32_t time, char* buffer, size_t size) {
  copyInto(timeText(time), buffer, size);
  return time < 1 ? 0 : 1;
}
