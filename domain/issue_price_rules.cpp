#include "domain/issue_price_rules.h"

#include <cmath>

#include "domain/number_text.h"

namespace {

constexpr size_t kMaxRupeeDigits = 7;
constexpr size_t kMaxPaiseDigits = 2;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace

bool isRupeeText(const std::string& text) {
  size_t digits = 0;
  size_t point = std::string::npos;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '.' && point == std::string::npos) {
      point = i;
    } else if (isDigit(text[i])) {
      ++digits;
    } else {
      return false;
    }
  }
  if (digits == 0) return false;
  if (point == std::string::npos) return text.size() <= kMaxRupeeDigits;
  return point <= kMaxRupeeDigits && text.size() - point - 1 <= kMaxPaiseDigits;
}

int64_t rupeeTextPaise(const std::string& text) {
  if (!isRupeeText(text)) return std::llround(leadingDouble(text) * 100.0);
  return decimalTextPaise(text);
}

int64_t decimalTextPaise(const std::string& text) {
  int64_t paise = 0;
  size_t decimals = 0;
  bool afterPoint = false;
  for (char c : text) {
    if (c == '.') {
      afterPoint = true;
      continue;
    }
    paise = paise * 10 + (c - '0');
    if (afterPoint) ++decimals;
  }
  for (; decimals < kMaxPaiseDigits; ++decimals) paise *= 10;
  return paise;
}

int tickDecimals(const std::string& tickText) {
  const size_t point = tickText.find('.');
  if (point == std::string::npos) return 0;
  const size_t after = tickText.size() - point - 1;
  return static_cast<int>(after < kMaxPaiseDigits ? after : kMaxPaiseDigits);
}

std::string tickMultipleRefusal(const char* name, const std::string& price,
                                const std::string& tickText) {
  const int64_t tickPaise = std::llround(leadingDouble(tickText) * 100.0);
  if (tickPaise < 1 || rupeeTextPaise(price) % tickPaise == 0) return {};
  return std::string(name) + " should be multiple of Tick Size which is " +
         fixedText(leadingDouble(tickText), tickDecimals(tickText)) + " rupees for this security";
}
