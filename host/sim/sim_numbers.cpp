#include "host/sim/sim_numbers.h"

#include <algorithm>
#include <cctype>

namespace sim {

namespace {

bool allDigits(const std::string& text) {
  return std::all_of(text.begin(), text.end(),
                     [](unsigned char c) { return std::isdigit(c) != 0; });
}

int64_t power10(int n) {
  int64_t p = 1;
  while (n-- > 0) p *= 10;
  return p;
}

}  // namespace

std::optional<int64_t> parseCount(const std::string& text) {
  if (text.empty() || text.size() > 18 || !allDigits(text)) return std::nullopt;
  return std::stoll(text);
}

std::optional<int64_t> parseSigned(const std::string& text) {
  if (text.empty() || (text[0] != '+' && text[0] != '-')) return parseCount(text);
  const auto magnitude = parseCount(text.substr(1));
  if (!magnitude) return std::nullopt;
  return text[0] == '-' ? -*magnitude : *magnitude;
}

std::optional<int64_t> parseFixed(const std::string& text, int decimals) {
  const size_t dot = text.find('.');
  const std::string whole = text.substr(0, dot);
  std::string fraction = dot == std::string::npos ? "" : text.substr(dot + 1);
  if (static_cast<int>(fraction.size()) > decimals || whole.size() > 12 ||
      (dot != std::string::npos && fraction.empty()) || !allDigits(fraction))
    return std::nullopt;
  const auto units = parseCount(whole);
  if (!units) return std::nullopt;
  fraction.resize(static_cast<size_t>(decimals), '0');
  return *units * power10(decimals) + (fraction.empty() ? 0 : std::stoll(fraction));
}

std::string fixedText(int64_t value, int decimals) {
  const int64_t scale = power10(decimals);
  std::string text = std::to_string(value / scale);
  if (decimals == 0) return text;
  std::string fraction = std::to_string(value % scale);
  fraction.insert(0, static_cast<size_t>(decimals) - fraction.size(), '0');
  return text + "." + fraction;
}

}  // namespace sim
