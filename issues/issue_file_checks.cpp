// The checks of one issue file line. The first failure decides the message, so the order of
// the steps is behaviour.

#include "domain/issue_price_rules.h"
#include "domain/number_text.h"
#include "domain/series.h"
#include "issues/issue_file.h"
#include "issues/issue_file_text.h"
#include "messaging/text_format.h"

namespace {

constexpr size_t kSymbolLimit = 25;
constexpr size_t kIsinLimit = 12;
constexpr size_t kUnderlyingTokenLimit = 24;
constexpr int64_t kHundredPercentPaise = 10000;

bool isSeriesWord(const std::string& word) {
  return word == "Retail" || word == "Employee" || word == "NonRetail";
}

bool isYesOrNo(const std::string& text) {
  return text == "Y" || text == "N";
}

// A price above zero as an administrator writes it.
bool isPositiveRupees(const std::string& text) {
  return isRupeeText(text) && rupeeTextPaise(text) > 0;
}

// Ceiling and indicative prices are optional; the issue dialog writes "0.00" for one not given,
// so a zero reads as not given and a file exported from such an issue uploads again.
bool isGiven(const std::string& price) {
  return !price.empty() && !(isRupeeText(price) && rupeeTextPaise(price) == 0);
}

// The three prices each refused the same way, with their own texts.
std::string requiredPriceRefusal(const std::string& price, const std::string& tick,
                                 const char* name, const char* blank, const char* invalid) {
  if (price.empty()) return blank;
  if (!isPositiveRupees(price)) return invalid;
  return tickMultipleRefusal(name, price, tick);
}

// Retail and employee series are capped by the retail limit, the non-retail series by its own.
std::string limitsRefusal(const IssueFileLine& l) {
  if (l.series == "NonRetail") {
    if (l.nonRetailLimit.empty()) return "Non Retail Individual Limit cannot be Blank";
    if (!isPositiveAmountText(l.nonRetailLimit)) return "Invalid Non Retail Individual Limit";
    if (!l.retailLimit.empty()) return "Retail Limit Should be Blank";
    return {};
  }
  if (l.retailLimit.empty()) return "Retail Limit cannot be Blank";
  if (!isPositiveAmountText(l.retailLimit)) return "Invalid Retail Limit";
  if (!l.nonRetailLimit.empty()) return "Non Retail Individual Limit Should be Blank";
  return {};
}

bool isValidDiscount(const std::string& discount, const std::string& kind) {
  if (!isAmountText(discount)) return false;
  if (kind != "P") return true;
  const int64_t paise = amountTextPaise(discount);
  return paise > 0 && paise <= kHundredPercentPaise;
}

std::string discountRefusal(const IssueFileLine& l) {
  if (!l.discVp.empty() && l.discVp != "V" && l.discVp != "P")
    return "Invalid Disc VP. Input should be V or P";
  if (!l.discount.empty() && !isValidDiscount(l.discount, l.discVp)) return "Invalid OFS Discount";
  if (!l.discVp.empty() && l.discount.empty()) return "OFS Discount Cannot be Blank";
  if (l.discVp.empty() && !l.discount.empty())
    return "Discount Type should be provided for Discount to be considered";
  return {};
}

std::string cutOffRefusal(const IssueFileLine& l) {
  const char* series = l.series.c_str();
  if (l.cutOff.empty()) return "Cut Off cannot be Blank";
  if (l.series == "Employee" && l.cutOff != "Y")
    return formatText("Invalid Cut Off. Input Should be Y for %s series", series);
  if (l.series == "NonRetail" && l.cutOff != "N")
    return formatText("Invalid Cut Off. Input Should be N for %s series", series);
  if (l.series == "Retail" && !isYesOrNo(l.cutOff))
    return formatText("Invalid Cut Off. Input Should be Y or N for %s series", series);
  return {};
}

std::string ceilingRefusal(const IssueFileLine& l, const std::string& tick) {
  if (!isGiven(l.ceilingPrice)) return {};
  if (boundedPaise(l.ceilingPrice) * 2 > boundedPaise(l.floorPrice) * 5)
    return "Ceiling Price cannot be more than 2.5 times of the floor price";
  if (!isRupeeText(l.ceilingPrice)) return "Invalid Ceiling Price";
  return tickMultipleRefusal("Ceiling Price", l.ceilingPrice, tick);
}

std::string indicativeRefusal(const IssueFileLine& l, const std::string& tick) {
  if (!isGiven(l.indicativePrice)) return {};
  const int64_t indicative = boundedPaise(l.indicativePrice);
  if (isGiven(l.ceilingPrice) && indicative > boundedPaise(l.ceilingPrice))
    return "Indicative Price Cannot be Greater than Ceiling Price";
  if (indicative < boundedPaise(l.floorPrice))
    return "Indicative Price Cannot be Less than Floor Price";
  if (!isRupeeText(l.indicativePrice)) return "Invalid Indicative Price";
  return tickMultipleRefusal("Indicative Price", l.indicativePrice, tick);
}

std::string orderPlacementRefusal(const IssueFileLine& l) {
  if (l.orderPlacement.empty()) return "Order Placement cannot be Blank";
  if (!isYesOrNo(l.orderPlacement)) return "Invalid Order Placement. Input Should be Y or N";
  if (l.orderPlacement == "Y" && l.symbolDisplay == "N")
    return "Order Placement Cannot be Y When Display Allowed is N";
  return {};
}

}  // namespace

std::string checkIssueFileLine(const IssueFileLine& l, std::optional<IssueDay> today) {
  std::string refusal;
  const auto failed = [&refusal](std::string text) {
    refusal = std::move(text);
    return !refusal.empty();
  };

  if (l.exchange.empty()) return "Exchange cannot be Blank";
  if (l.exchange != "nse_ipo" && l.exchange != "bse_ipo") return "InValid Exchange";
  if (l.symbolName.empty()) return "Symbol cannot be Blank";
  if (l.symbolName.size() > kSymbolLimit)
    return "Symbol length should not be more than 25 characters";
  if (l.series.empty()) return "Series cannot be Blank";
  if (l.exchange == "nse_ipo" && !isNseSeriesWord(l.series)) return "Invalid Series";
  if (!isSeriesWord(l.series)) return "Invalid Series";
  if (l.isin.empty()) return "ISIN cannot be Blank";
  if (l.isin.size() > kIsinLimit) return "ISIN length should not be more than 12 characters";
  if (l.faceValue.empty()) return "FaceValue cannot be Blank";
  if (!isPositiveRupees(l.faceValue)) return "Invalid FaceValue";
  if (l.tickSize.empty()) return "TickSize cannot be Blank";
  if (!isPositiveRupees(l.tickSize)) return "Invalid TickSize";
  // From here the tick is the reformatted one, so its messages always show two decimals.
  const std::string tick = rupeesText(l.tickSize);
  if (failed(requiredPriceRefusal(l.floorPrice, tick, "Floor Price", "Floor Price cannot be Blank",
                                  "Invalid Floor Price")))
    return refusal;
  if (failed(requiredPriceRefusal(l.rmsPrice, tick, "RMS Price", "RMS Price cannot be Blank",
                                  "Invalid RMS Price")))
    return refusal;
  // Whole rupees only, as the issue dialog compares them: floor 100.75 passes RMS 100.25.
  if (leadingInt64(l.floorPrice) > leadingInt64(l.rmsPrice))
    return "Floor price cannot be greater than RMS price";
  const auto start = issueFileDate(l.startDate);
  if (l.startDate.empty()) return "OFS Start Date cannot be Blank";
  if (!start) return "Invalid OFS Start Date";
  if (today && *start < *today) return "OFS Start Date cannot be Past Date";
  const auto close = issueFileDate(l.closeDate);
  if (l.closeDate.empty()) return "OFS Close Date cannot be Blank";
  if (!close) return "Invalid OFS Close Date";
  const auto last = issueFileDate(l.finalModificationDate);
  if (l.finalModificationDate.empty()) return "Final Modification Date cannot be Blank";
  if (!last) return "Invalid Final Modification Date";
  if (*start != *close || *start != *last)
    return "OFS Start Date, OFS Close Date and Final Modification Date must be same";
  if (l.minQuantity.empty()) return "Min Quantity cannot be Blank";
  if (!isQuantityText(l.minQuantity)) return "Invalid Min Quantity";
  if (l.multipleQuantity.empty()) return "Multiple Quantity cannot be Blank";
  if (!isQuantityText(l.multipleQuantity)) return "Invalid Multiple Quantity";
  const int64_t minimum = leadingInt64(l.minQuantity);
  const int64_t multiple = leadingInt64(l.multipleQuantity);
  if (minimum < multiple)
    return "Min Quantity should be greater than or equal to Multiple Quantity";
  if (minimum % multiple != 0) return "Min Quantity should be a multiple of Multiple Quantity";
  if (l.ofsSize.empty()) return "OFS Size cannot be Blank";
  if (!isQuantityText(l.ofsSize)) return "Invalid OFS Size";
  if (failed(limitsRefusal(l))) return refusal;
  if (l.closingTime.empty()) return "Order Closing Time cannot be Blank";
  if (issueFileTime(l.closingTime).value_or(0) == 0) return "Invalid Order Closing Time";
  if (failed(discountRefusal(l))) return refusal;
  if (l.issueNotes.empty()) return "Issue Notes cannot be Blank";
  if (l.prospectusUrl.empty()) return "Prospectus URL cannot be Blank";
  if (failed(cutOffRefusal(l))) return refusal;
  if (l.companyName.empty()) return "Company Name cannot be Blank";
  if (l.underlyingToken.size() > kUnderlyingTokenLimit)
    return "Underlying Token length should not be more than 24 characters";
  if (failed(ceilingRefusal(l, tick))) return refusal;
  if (failed(indicativeRefusal(l, tick))) return refusal;
  if (l.symbolDisplay.empty()) return "Symbol Display cannot be Blank";
  if (!isYesOrNo(l.symbolDisplay)) return "Invalid Symbol Display. Input Should be Y or N";
  return orderPlacementRefusal(l);
}
