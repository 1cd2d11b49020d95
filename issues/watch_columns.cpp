#include "issues/watch_columns.h"

#include <cstdio>

#include "domain/exchange_names.h"

const std::array<ColumnDescriptor, kWatchColumnCount>& watchColumns() {
  // "Minimun Quantity" and the narrow "Close Date" are the product's own and stay as they are.
  static const std::array<ColumnDescriptor, kWatchColumnCount> columns{{
      {"OFS ID", 50, 0},
      {"Open Date", 100, 0},
      {"Close Date", 50, 0},
      {"Issue Size", 100, 1},
      {"Tick Size", 100, 1},
      {"Floor Price", 100, 0},
      {"RMS Price", 100, 0},
      {"Symbol", 100, 0},
      {"Series", 150, 0},
      {"Exchange", 150, 0},
      {"CutOff", 150, 0},
      {"Minimun Quantity", 150, 0},
      {"Lot Size", 150, 0},
      {"Company Name", 150, 0},
      {"Ceiling Price", 150, 1},
      {"Indicative Price", 150, 1},
      {"Underlying LTP", 150, 1},
  }};
  return columns;
}

namespace {

std::string format(const char* fmt, double value) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, fmt, value);
  return buffer;
}

std::string underlyingLtp(const sOFSCol& issue, const std::string& passed) {
  if (!issue.asset) return passed;
  const sAssetInfo& a = *issue.asset;
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%0.*lf", a.decimals, a.ltp / a.divisor);
  return buffer;
}

}  // namespace

std::string watchColumnText(const sOFSCol* issue, int column, const std::string& passed) {
  if (!issue) return {};
  const sOFSCol& i = *issue;
  switch (column) {
    case 0:
      return i.issueId;
    case 1:
      return i.field49165;
    case 2:
      return i.field79;
    case 3:
      return format("%.0lf", i.issueSize);
    case 4:
      return format("%.2lf", i.tickSize);
    case 5:
      return i.floorPrice;
    case 6:
      return i.field54079;
    case 7:
      return i.field3;
    case 8:
      return i.category;
    case 9:
      return exchangeScreenName(i.exchange);
    case 10:
      return i.field63059;
    case 11:
      return std::to_string(i.minQuantity);
    case 12:
      return i.lotSizeText;
    case 13:
      return i.field49033;
    case 14:
      return i.field63023;
    case 15:
      return i.field54803;
    case 16:
      return underlyingLtp(i, passed);
    case 17:
      return i.field61002;
    default:
      return passed;
  }
}
