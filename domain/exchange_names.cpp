#include "domain/exchange_names.h"

std::string exchangeScreenName(const std::string& key) {
  return key == "bse_ipo" ? "BSEIPO" : "NSEIPO";
}

std::string exchangeKey(const std::string& screenName) {
  return screenName == "BSEIPO" ? "bse_ipo" : "nse_ipo";
}

std::string cashSegmentOf(const std::string& issueExchange) {
  return issueExchange == "bse_ipo" ? "bse_cm" : "nse_cm";
}
