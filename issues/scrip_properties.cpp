#include "issues/scrip_properties.h"

#include "domain/exchange_names.h"
#include "issues/watch_columns.h"

namespace {

std::string yesNo(const std::string& flag) {
  if (flag == "Y") return "Yes";
  if (flag == "N") return "No";
  return flag;
}

}  // namespace

void CScripProp::show(const sOFSCol& i) {
  title_ = "Scrip Properties - " + i.symbol;
  rows_ = {
      {"OFS ID", i.issueId},
      {"Symbol", i.symbol},
      {"Scrip", i.field3},
      {"Company Name", i.field49033},
      {"Exchange", exchangeScreenName(i.exchange)},
      {"Series", i.category},
      {"Open Date", i.field49165},
      {"Close Date", i.field79},
      {"Floor Price", i.floorPrice},
      {"Ceiling Price", i.field63023},
      {"Indicative Price", i.field54803},
      {"RMS Price", i.field54079},
      {"Tick Size", watchColumnText(&i, 4)},
      {"Cut-Off Allowed", i.field63059},
      {"Minimum Quantity", watchColumnText(&i, 11)},
      {"Lot Size", i.lotSizeText},
      {"Issue Size", watchColumnText(&i, 3)},
      {"HNI Limit", i.hniLimit},
      {"Underlying Symbol", i.assetSymbol},
      {"Underlying LTP", watchColumnText(&i, 16, "NA")},
      {"Bidding Allowed", yesNo(i.biddingFlag)},
      {"Modify/Cancel Allowed", yesNo(i.modifyCancelFlag)},
      {"Field 13041", i.field13041},
      {"Field 107", i.field107},
      {"Field 54009", i.field54009},
      {"Field 67", i.field67},
      {"Field 12019", i.field12019},
      {"Field 12020", i.field12020},
      {"Field 13004", i.field13004},
      {"Field 10046", i.field10046},
      {"Field 61002", i.field61002},
      {"Field 63017", i.field63017},
  };
}
