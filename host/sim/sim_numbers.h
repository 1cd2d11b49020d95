// Strict number texts: a text either is the number, whole, or is refused.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace sim {

// "0", "42": digits only, at most 18.
std::optional<int64_t> parseCount(const std::string& text);
// A count with an optional leading "+" or "-".
std::optional<int64_t> parseSigned(const std::string& text);
// "101.5" with 2 decimals gives 10150; more decimals than `decimals` are refused.
std::optional<int64_t> parseFixed(const std::string& text, int decimals);
// 10150 with 2 decimals gives "101.50".
std::string fixedText(int64_t value, int decimals);

}  // namespace sim
