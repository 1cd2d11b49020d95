#include "domain/prices.h"

#include <cmath>
#include <cstring>
#include <limits>

#include "domain/number_text.h"

namespace {

// What the x86 conversion gives for a value no 32-bit integer holds (NaN, or below the range).
constexpr int32_t kIndefinite = std::numeric_limits<int32_t>::min();

int32_t truncateToInt32(double value) {
  if (std::isnan(value) || value < -2147483648.0) return kIndefinite;
  return static_cast<int32_t>(value);
}

}  // namespace

int32_t convertRupeesToPaise(const char* rupees, int32_t decimals, int32_t multiplier) {
  double value = rupees == nullptr ? 0.0 : leadingDouble(rupees);
  double factor = std::pow(10.0, decimals) * multiplier;
  // Half up on the binary value: 1.005 is stored just below itself and gives 100.
  double result = std::floor(value * factor + 0.5);
  if (result > 2147483647.0) return -1;
  return truncateToInt32(result);
}

std::string paiseToRupeesText(const std::string& wirePrice) {
  if (wirePrice == "MKT") return wirePrice;
  return fixedText(leadingDouble(wirePrice) / 100.0, 2);
}

int32_t monthNumber(const char* month) {
  static constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  if (month == nullptr) return 0;
  for (int32_t i = 0; i < 12; ++i) {
    if (std::strcmp(month, kMonths[i]) == 0) return i + 1;
  }
  return 0;
}
