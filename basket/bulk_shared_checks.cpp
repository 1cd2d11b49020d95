#include "basket/bulk_shared_checks.h"

#include "domain/issue_terms.h"
#include "domain/number_text.h"
#include "domain/prices.h"
#include "domain/quantity_rules.h"

namespace bulk {

using C = BidColumn;

// The bid files word two of the price check's refusals their own way; the others stand as the
// check gives them.
std::string checkBidPrice(std::string_view price, const sOFSCol* issue) {
  std::string message;
  if (checkPriceTickPaise(std::string(price), message, issue ? tickPaiseOf(*issue) : 0, 2)) {
    return {};
  }
  if (message == "Please enter valid Price") return kInvalidPrice;
  if (message == "Please enter the paise correctly") return "Incorrect Paise";
  return message;
}

const sOFSCol* issueOfLine(const BidLine& line, const BidContext& context) {
  if (!context.issueBySymbol) return nullptr;
  return context.issueBySymbol(line[C::Symbol], line[C::Series]);
}

std::string checkAgainstIssue(const BidLine& line, const BidContext& context,
                              const sOFSCol* issue) {
  if (!context.issueBySymbol) return {};
  if (!issue) return "Issue Id not found";
  const std::string quantity(line[C::Quantity]);
  const std::string_view price = line[C::Price];
  const bool priced = price != kMarketPrice;
  const double rupees = leadingDouble(price);
  const double ceiling = leadingDouble(ceilingPriceOf(*issue));
  std::string message;
  if (!checkQuantityLot(quantity, *issue, message)) return message;
  if (priced && ceiling > 0 && rupees > ceiling) return "Price out of range";
  if (!checkQuantityIssueSize(quantity, *issue, message)) return message;
  if (priced && rupees < leadingDouble(issue->floorPrice)) {
    return "Price cannot be less than Floor Price";
  }
  return {};
}

}  // namespace bulk
