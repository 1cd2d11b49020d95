// The two names of an exchange: the key on the wire ("nse_ipo") and the name on screen.
#pragma once

#include <string>

// "bse_ipo" gives "BSEIPO"; any other text "NSEIPO".
std::string exchangeScreenName(const std::string& key);
// "BSEIPO" gives "bse_ipo"; any other text "nse_ipo".
std::string exchangeKey(const std::string& screenName);
// The cash segment an issue's underlying trades in: "bse_cm" for "bse_ipo", else "nse_cm".
std::string cashSegmentOf(const std::string& issueExchange);
