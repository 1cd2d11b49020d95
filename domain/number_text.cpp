#include "domain/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "domain/char_classes.h"

namespace {

bool isSpace(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string_view skipSpaces(std::string_view text) {
  size_t i = 0;
  while (i < text.size() && isSpace(text[i])) ++i;
  return text.substr(i);
}

// Drops a leading '+'; false when it is followed by another sign, which atof refuses.
bool dropPlus(std::string_view& text) {
  if (text.empty() || text[0] != '+') return true;
  text.remove_prefix(1);
  return text.empty() || text[0] != '-';
}

// A number that does not fit a double is too large when its first significant digit stands
// left of the point once the exponent is applied.
bool isTooLarge(std::string_view number) {
  int64_t scale = 0;
  bool pastPoint = false;
  bool significant = false;
  size_t i = number[0] == '-' ? 1 : 0;
  for (; i < number.size() && (isDigit(number[i]) || number[i] == '.'); ++i) {
    if (number[i] == '.') {
      pastPoint = true;
    } else if (!significant && number[i] == '0') {
      if (pastPoint) --scale;
    } else {
      significant = true;
      if (!pastPoint) ++scale;
    }
  }
  if (!significant) return false;
  int64_t exponent = 0;
  if (i + 1 < number.size()) {
    int64_t saturated = leadingInt64(number.substr(i + 1));
    exponent = std::clamp<int64_t>(saturated, -100000, 100000);
  }
  return scale + exponent > 0;
}

}  // namespace

double leadingDouble(std::string_view text) {
  std::string_view number = skipSpaces(text);
  if (!dropPlus(number)) return 0.0;
  double value = 0.0;
  auto [end, ec] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (ec == std::errc::invalid_argument) return 0.0;
  if (ec == std::errc::result_out_of_range) {
    std::string_view matched(number.data(), static_cast<size_t>(end - number.data()));
    double magnitude = isTooLarge(matched) ? HUGE_VAL : 0.0;
    return number[0] == '-' ? -magnitude : magnitude;
  }
  return value;
}

int64_t leadingInt64(std::string_view text) {
  std::string_view number = skipSpaces(text);
  if (!dropPlus(number)) return 0;
  int64_t value = 0;
  auto [end, ec] = std::from_chars(number.data(), number.data() + number.size(), value);
  (void)end;
  if (ec == std::errc::invalid_argument) return 0;
  if (ec == std::errc::result_out_of_range) {
    return number[0] == '-' ? std::numeric_limits<int64_t>::min()
                            : std::numeric_limits<int64_t>::max();
  }
  return value;
}

std::string fixedText(double value, int precision) {
  // The widest double printed in full: 309 integer digits, a sign and the point. Short
  // precisions print on the stack: the price checks call this for every bid file line.
  const size_t width = 320 + static_cast<size_t>(std::max(precision, 0));
  char stack[400];
  std::string heap(width > sizeof(stack) ? width : 0, '\0');
  char* text = heap.empty() ? stack : heap.data();
  auto [end, ec] =
      std::to_chars(text, text + width, value, std::chars_format::fixed, std::max(precision, 0));
  if (ec != std::errc()) return {};
  return std::string(text, end);
}
