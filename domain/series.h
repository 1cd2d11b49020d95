// The series of an issue and the two groups of series that the amount limits tell apart.
#pragma once

#include <string>

// The text of the symbol after its first "-", with every "-" removed: "ABC-R-S" gives "RS".
// A symbol without "-" has no series (empty text).
std::string seriesOfSymbol(const std::string& symbol);

// "RS", "ES", "Employee" and "Retail": capped by the retail amount limit.
bool isRetailLikeSeries(const std::string& series);
// "NonRetail" and "IS": bound below by the non-retail amount limit.
bool isNonRetailSeries(const std::string& series);

// Administrators name series in words, "Retail", "Employee" or "NonRetail", on both exchanges.
// An NSE issue carries the exchange's own codes: "RS", "ES" and "IS".
std::string seriesOfExchange(const std::string& exchange, const std::string& word);
// The word an administrator uses for a series: "RS" gives "Retail", "ES" "Employee", "IS"
// "NonRetail"; a word is kept as it is.
std::string seriesWord(const std::string& series);
// Whether an "nse_ipo" issue may carry the series word: NSE offers sell in a retail and a
// non-retail series only.
bool isNseSeriesWord(const std::string& word);
