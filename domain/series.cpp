#include "domain/series.h"

#include <algorithm>

std::string seriesOfSymbol(const std::string& symbol) {
  size_t dash = symbol.find('-');
  if (dash == std::string::npos) return {};
  std::string series = symbol.substr(dash + 1);
  std::erase(series, '-');
  return series;
}

bool isRetailLikeSeries(const std::string& series) {
  return series == "RS" || series == "ES" || series == "Employee" || series == "Retail";
}

bool isNonRetailSeries(const std::string& series) {
  return series == "NonRetail" || series == "IS";
}
