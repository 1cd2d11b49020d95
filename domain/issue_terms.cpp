#include "domain/issue_terms.h"

#include <ctime>
#include <string_view>

#include "domain/number_text.h"

std::string priceRangeOf(const sOFSCol& issue) {
  return issue.floorPrice + "-" + issue.field63023;
}

PriceBand splitPriceRange(const std::string& range) {
  const size_t dash = range.find('-');
  if (dash == std::string::npos) return {range, {}};
  return {range.substr(0, dash), range.substr(dash + 1)};
}

const std::string& ceilingPriceOf(const sOFSCol& issue) {
  return issue.field63023;
}

const std::string& retailLimitOf(const sOFSCol& issue) {
  return issue.field54009;
}

const std::string& nonRetailLimitOf(const sOFSCol& issue) {
  return issue.hniLimit;
}

const std::string& closingTimeOf(const sOFSCol& issue) {
  return issue.field67;
}

const std::string& cutOffAllowanceOf(const sOFSCol& issue) {
  return issue.field63059;
}

const std::string& indicativePriceOf(const sOFSCol& issue) {
  return issue.field54803;
}

int64_t tickPaiseOf(const sOFSCol& issue) {
  return static_cast<int64_t>(issue.tickSize * 100);
}

bool isPastClosingTime(const std::string& closingTime, int64_t now) {
  int parts[3] = {0, 0, 0};
  std::string_view rest = closingTime;
  for (int& part : parts) {
    part = static_cast<int>(leadingInt64(rest));
    const size_t colon = rest.find(':');
    rest = colon == std::string_view::npos ? std::string_view() : rest.substr(colon + 1);
  }
  const std::time_t seconds = static_cast<std::time_t>(now);
  std::tm closing{};
  localtime_r(&seconds, &closing);
  closing.tm_hour = parts[0];
  closing.tm_min = parts[1];
  closing.tm_sec = parts[2];
  closing.tm_isdst = -1;
  return now > static_cast<int64_t>(std::mktime(&closing));
}
