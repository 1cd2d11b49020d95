// Reading numbers from typed or received text, and printing them, the same way in every locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The leading decimal number of `text`, as the C library's atof reads it in the C locale:
// leading white space and a sign are allowed, the rest after the number is ignored, and text
// that does not start with a number gives 0. Too large gives +-HUGE_VAL, too small 0.
double leadingDouble(std::string_view text);

// The leading integer of `text`, as atoll reads it: saturates at the 64-bit limits.
int64_t leadingInt64(std::string_view text);

// `value` printed with "%.*f" and `precision` digits after the point, in the C locale.
std::string fixedText(double value, int precision);
