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
