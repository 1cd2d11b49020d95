#include "domain/prices.h"

#include <cmath>
#include <limits>

#include "domain/char_classes.h"
#include "domain/number_text.h"
#include "domain/prompt_port.h"
#include "domain/refusal.h"

namespace {

constexpr const char* kTooManyRupeeDigits = "cannot have more than 7 digits in rupees part";
constexpr const char* kAmountTooLarge = "Amount Cannot exceed above 9999999";
constexpr size_t kMaxRupeeDigits = 7;

// Every character a digit, except the first point.
bool isPriceText(const std::string& price) {
  size_t point = price.find('.');
  for (size_t i = 0; i < price.size(); ++i) {
    if (i != point && !isDigit(price[i])) return false;
  }
  return true;
}

// Any step but 0; -1 is answered without dividing, as INT64_MIN % -1 is undefined.
bool isMultipleOf(int64_t value, int64_t step) {
  return step == -1 || value % step == 0;
}

size_t digitsAfter(const std::string& price, size_t point) {
  return price.size() - point - 1;
}

// The steps both tick checks share: characters, rupee digits, paise digits.
bool checkPriceDigits(const std::string& price, int32_t decimals, std::string& message) {
  size_t point = price.find('.');
  bool hasPoint = point != std::string::npos;
  if (!isPriceText(price)) return refuse(message, "Please enter valid Price");
  if (!hasPoint && price.size() > kMaxRupeeDigits) return refuse(message, kTooManyRupeeDigits);
  if (hasPoint && point > kMaxRupeeDigits) return refuse(message, kTooManyRupeeDigits);
  if (hasPoint && static_cast<int64_t>(digitsAfter(price, point)) > decimals) {
    return refuse(message, "Please enter the paise correctly");
  }
  return true;
}

// Printing with two decimals first makes 0.29 * 100 = 28.999... count as 29 paise. For the texts
// the digit steps let through with at most seven rupee and two paise digits, that round trip
// gives exactly the digits read as whole paise, so those are read directly: bid files check a
// million prices at a time.
int64_t paiseOf(const std::string& price) {
  const size_t point = price.find('.');
  const size_t rupeeDigits = point == std::string::npos ? price.size() : point;
  const size_t paiseDigits = point == std::string::npos ? 0 : price.size() - point - 1;
  if (rupeeDigits > kMaxRupeeDigits || paiseDigits > 2 || !isPriceText(price)) {
    return leadingInt64(fixedText(leadingDouble(price) * 100.0, 2));
  }
  int64_t paise = 0;
  for (char c : price) {
    if (c != '.') paise = paise * 10 + (c - '0');
  }
  return paiseDigits == 2 ? paise : paiseDigits == 1 ? paise * 10 : paise * 100;
}

int tickRefusal(double tickRupees, std::string& message) {
  message = "Price should be multiple of Tick Size which is " + fixedText(tickRupees, 2) +
            " rupees for this security";
  return 0;
}

std::string priceAndQuantityRefusal(const std::string& price, const std::string& quantity) {
  if (quantity.find('.') != std::string::npos) return "Enter valid Quantity";
  if (leadingDouble(quantity) > 2147483647.0) {
    return " should not be more than integer max value(" +
           std::to_string(std::numeric_limits<int32_t>::max()) + ")";
  }
  if (!isPriceText(price)) return "Please enter valid price ";
  size_t point = price.find('.');
  bool hasPoint = point != std::string::npos;
  // Intended: with no point in the price it is the quantity's length that is limited first.
  if (!hasPoint && quantity.size() > kMaxRupeeDigits) return kAmountTooLarge;
  if (hasPoint && point > kMaxRupeeDigits) return kAmountTooLarge;
  if (!hasPoint && price.size() > kMaxRupeeDigits) return kAmountTooLarge;
  // Intended: eight paise digits pass although the text speaks of two.
  if (hasPoint && digitsAfter(price, point) > 8) return "Paise Part cannot Exceed above .99";
  return {};
}

}  // namespace

int checkPriceTickRupees(const std::string& price, std::string& message, int64_t tick,
                         int32_t decimals) {
  if (!checkPriceDigits(price, decimals, message)) return 0;
  if (tick < 1) return 1;
  bool multiple = false;
  if (price.find('.') == std::string::npos) {
    multiple = isMultipleOf(leadingInt64(price), tick);
  } else {
    // A multiple of tick * 100 paise, without forming tick * 100.
    int64_t paise = paiseOf(price);
    multiple = isMultipleOf(paise, 100) && isMultipleOf(paise / 100, tick);
  }
  return multiple ? 1 : tickRefusal(static_cast<double>(tick), message);
}

int checkPriceTickPaise(const std::string& price, std::string& message, int64_t tickPaise,
                        int32_t decimals) {
  if (!checkPriceDigits(price, decimals, message)) return 0;
  bool multiple = false;
  if (!price.empty() && price.front() == '.') {
    // Intended and must stay: ".5" is read as 5 and taken as 500 paise; only a zero tick skips.
    // Unsigned, so that an absurd count of paise digits wraps instead of overflowing.
    uint64_t whole = static_cast<uint64_t>(leadingInt64(price.substr(1)));
    int64_t paise = static_cast<int64_t>(whole * 100u);
    multiple = tickPaise == 0 || isMultipleOf(paise, tickPaise);
  } else {
    multiple = tickPaise < 1 || isMultipleOf(paiseOf(price), tickPaise);
  }
  if (multiple) return 1;
  // Shown in single precision, as tick * 10^decimals / 10000: the tick in rupees for 2 decimals.
  float shown =
      static_cast<float>(tickPaise) * std::pow(10.0f, static_cast<float>(decimals)) / 10000.0f;
  return tickRefusal(shown, message);
}

int checkPriceAndQuantity(PromptPort& prompt, const std::string& price,
                          const std::string& quantity) {
  std::string refusal = priceAndQuantityRefusal(price, quantity);
  if (refusal.empty()) return 1;
  prompt.message(refusal);
  return 0;
}
