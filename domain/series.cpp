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

std::string seriesOfExchange(const std::string& exchange, const std::string& word) {
  if (exchange != "nse_ipo") return word;
  if (word == "Retail") return "RS";
  if (word == "Employee") return "ES";
  if (word == "NonRetail") return "IS";
  return word;
}

std::string seriesWord(const std::string& series) {
  if (series == "RS") return "Retail";
  if (series == "ES") return "Employee";
  if (series == "IS") return "NonRetail";
  return series;
}

bool isNseSeriesWord(const std::string& word) {
  return word == "Retail" || word == "NonRetail";
}
