#include "domain/amount_rules.h"

#include <cmath>

#include "domain/client_rules.h"
#include "domain/number_text.h"
#include "domain/refusal.h"
#include "domain/series.h"

double bidAmount(const std::string& price, const std::string& quantity,
                 const std::string& priceBandUpper) {
  const std::string& rupees = price == "MKT" ? priceBandUpper : price;
  return std::trunc(leadingDouble(rupees) * leadingDouble(quantity));
}

bool checkBidAmount(const BidAmount& bid, std::string& message) {
  double amount = bidAmount(bid.price, bid.quantity, bid.priceBandUpper);
  if (isRetailLikeSeries(bid.series) && amount > leadingDouble(bid.retailLimit)) {
    return refuse(message, "Amount cannot be greater than " + bid.retailLimit + " for " +
                               bid.series + " series orders");
  }
  if (isNonRetailSeries(bid.series) && amount < leadingDouble(bid.nonRetailLimit)) {
    return refuse(message, "Amount Should Exceed " + bid.nonRetailLimit + " for " + bid.series +
                               " series orders");
  }
  return true;
}

bool checkNseRevision(const Revision& revision, std::string& message) {
  const Revision& r = revision;
  if (r.series != "IS" || r.margin != kNoMargin || r.exchange != "nse_ipo") return true;
  if (leadingDouble(r.newPrice) < leadingDouble(r.oldPricePaise) / 100) {
    return refuse(message, "Price cannot be modified downwards");
  }
  if (leadingDouble(r.newQuantity) < leadingDouble(r.oldQuantity)) {
    return refuse(message, "Quantity cannot be modified downwards");
  }
  return true;
}
