// How the issue file writes numbers, shared by its checks, its reader and its writer.
#pragma once

#include <cstdint>
#include <string>

#include "issues/issue_file.h"

// An amount (a limit, a discount): digits with at most one point and two digits after it, at
// least one digit, at most 15 before the point. Limits run beyond the seven rupee digits of a
// price.
bool isAmountText(const std::string& text);
bool isPositiveAmountText(const std::string& text);
// Whole paise of an amount text that isAmountText accepts.
int64_t amountTextPaise(const std::string& text);
// A whole number above zero that fits a 64-bit count: digits only, at most 18 of them.
bool isQuantityText(const std::string& text);
// Paise of any price text, held within 0 and 10^15 so that comparisons never overflow; exact
// for the texts isRupeeText accepts.
int64_t boundedPaise(const std::string& text);
// A rupee text printed "%.2lf".
std::string rupeesText(const std::string& text);
// "%d/%m/%Y" of a day and "%H:%M:%S" of seconds into a day.
std::string issueDayText(IssueDay day);
std::string issueTimeText(int seconds);
