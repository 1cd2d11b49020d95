// Rules an administrator's issue prices share, whether typed in the issue dialog or read from
// an issue file.
#pragma once

#include <cstdint>
#include <string>

// Rupees as an administrator writes them: digits with at most one point, at least one digit,
// at most seven rupee digits and two paise digits.
bool isRupeeText(const std::string& text);

// Whole paise of digits with at most one point and two digits after it, read exactly; the
// caller has checked the text's form.
int64_t decimalTextPaise(const std::string& text);

// Whole paise of a rupee text, exact for the texts isRupeeText accepts.
int64_t rupeeTextPaise(const std::string& text);

// Digits after the point of a tick text, at most 2: how many decimals the tick is shown with.
int tickDecimals(const std::string& tickText);

// Empty when `price` is a whole multiple of the tick (or the tick is below one paisa);
// otherwise "<name> should be multiple of Tick Size which is <tick> rupees for this
// security", the tick printed with the decimals of its own text.
std::string tickMultipleRefusal(const char* name, const std::string& price,
                                const std::string& tickText);
