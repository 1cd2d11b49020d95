// Prices on the wire are whole paise; on screen they are rupees with two decimals.
#pragma once

#include <cstdint>
#include <string>

class PromptPort;

// Rupee text to paise: value * 10^decimals * multiplier, rounded half up; -1 above INT32_MAX.
int32_t convertRupeesToPaise(const char* rupees, int32_t decimals, int32_t multiplier);

// Typed price against a tick given in whole rupees. 1 = valid, 0 = invalid with `message` set.
int checkPriceTickRupees(const std::string& price, std::string& message, int64_t tick,
                         int32_t decimals);

// Typed price against a tick given in paise. 1 = valid, 0 = invalid with `message` set.
int checkPriceTickPaise(const std::string& price, std::string& message, int64_t tickPaise,
                        int32_t decimals);

// Price and quantity of an order being edited; shows the first refusal. 1 = valid, 0 = refused.
int checkPriceAndQuantity(PromptPort& prompt, const std::string& price,
                          const std::string& quantity);

// Wire price (paise) to the rupee text shown; "MKT" is shown as it is.
std::string paiseToRupeesText(const std::string& wirePrice);

// Three-letter month name ("Jan".."Dec", case-sensitive) to 1..12; 0 for anything else.
int32_t monthNumber(const char* month);
