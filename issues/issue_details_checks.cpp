// The checks of the issue dialog's Add and Modify, in the order the first refusal depends on.
#include <array>

#include "domain/issue_date.h"
#include "domain/issue_price_rules.h"
#include "domain/number_text.h"
#include "issues/issue_details.h"

namespace {

using T = IssueText;
using L = IssueList;

const std::string& text(const IssueDetailsFields& f, T t) {
  return f[t].text;
}
const char* label(T t) {
  return kIssueTexts[static_cast<size_t>(t)].label;
}
IssueRefusal refuse(std::string message, T t) {
  return {std::move(message), label(t)};
}
IssueRefusal refuse(std::string message, L l) {
  return {std::move(message), kIssueListLabels[static_cast<size_t>(l)]};
}
int64_t whole(const IssueDetailsFields& f, T t) {
  return leadingInt64(text(f, t));
}
bool zeroOrEmpty(const IssueDetailsFields& f, T t) {
  return whole(f, t) == 0;
}
// A price not typed counts as "0.00".
std::string priceOrZero(const IssueDetailsFields& f, T t) {
  return text(f, t).empty() ? "0.00" : text(f, t);
}

IssueRefusal checkPrices(const IssueDetailsFields& f) {
  const std::string& tick = text(f, T::TickSize);
  if (tick.empty() || leadingDouble(tick) == 0.0)
    return refuse("Please enter valid Tick Size", T::TickSize);
  if (text(f, T::FloorPrice).empty()) return refuse("Please enter the Floor Price", T::FloorPrice);
  if (auto m = tickMultipleRefusal("Floor Price", text(f, T::FloorPrice), tick); !m.empty())
    return refuse(m, T::FloorPrice);
  if (text(f, T::RmsPrice).empty()) return refuse("Please enter the RMS Price", T::RmsPrice);
  if (auto m = tickMultipleRefusal("RMS Price", text(f, T::RmsPrice), tick); !m.empty())
    return refuse(m, T::RmsPrice);
  // Whole rupees only, so 100.75 against 100.25 passes: intended, and kept.
  if (whole(f, T::FloorPrice) > whole(f, T::RmsPrice))
    return refuse("Floor price cannot be greater than RMS price", T::FloorPrice);
  return {};
}

IssueRefusal checkDates(const IssueDetailsFields& f) {
  const int64_t start = parseIssueDate(text(f, T::StartDate));
  if (start < 0 || parseIssueDate(text(f, T::CloseDate)) != start ||
      parseIssueDate(text(f, T::FinalModificationDate)) != start)
    return refuse("OFS Start Date, OFS Close Date and Final Modification Date must be same",
                  T::StartDate);
  return {};
}

IssueRefusal checkQuantities(const IssueDetailsFields& f) {
  if (zeroOrEmpty(f, T::MinQuantity))
    return refuse("Please enter valid Min Quantity", T::MinQuantity);
  if (zeroOrEmpty(f, T::MultipleQuantity))
    return refuse("Please enter valid Multiple Qty", T::MultipleQuantity);
  const int64_t min = whole(f, T::MinQuantity);
  const int64_t multiple = whole(f, T::MultipleQuantity);
  if (min < multiple)
    return refuse("Min Quantity should be greater than or equal to Multiple Quantity",
                  T::MinQuantity);
  if (min % multiple != 0)
    return refuse("Min Quantity should be a multiple of Multiple Quantity", T::MinQuantity);
  if (zeroOrEmpty(f, T::OfsSize)) return refuse("Please enter valid OFS Size", T::OfsSize);
  if (f[T::RetailLimit].enabled && zeroOrEmpty(f, T::RetailLimit))
    return refuse("Please enter valid Retail Limit", T::RetailLimit);
  if (f[T::NonRetailLimit].enabled && zeroOrEmpty(f, T::NonRetailLimit))
    return refuse("Please enter valid Non Inst Limit", T::NonRetailLimit);
  return {};
}

IssueRefusal checkDiscount(const IssueDetailsFields& f) {
  const std::string& kind = f[L::DiscVp].selected;
  if (f.discountOffered && kind.empty()) return refuse("Please select the Disc VP", L::DiscVp);
  if (kind.empty()) return {};
  if (text(f, T::Discount).empty()) return refuse("Please enter OFS Discount", T::Discount);
  const double discount = leadingDouble(text(f, T::Discount));
  if (kind == "P" && (discount > 100.0 || discount == 0.0))
    return refuse("Please enter valid OFS Discount", T::Discount);
  return {};
}

IssueRefusal checkDescriptions(const IssueDetailsFields& f) {
  if (text(f, T::IssueNotes).empty()) return refuse("Please enter Issue Notes", T::IssueNotes);
  if (!isValidProspectusUrl(text(f, T::ProspectusUrl)))
    return refuse("Please enter valid Prospectus URL", T::ProspectusUrl);
  if (text(f, T::CompanyName).empty())
    return refuse("Please enter the Company Name", T::CompanyName);
  return {};
}

IssueRefusal checkOuterPrices(const IssueDetailsFields& f) {
  const std::string& tick = text(f, T::TickSize);
  const std::string ceiling = priceOrZero(f, T::CeilingPrice);
  if (auto m = tickMultipleRefusal("Ceiling Price", ceiling, tick); !m.empty())
    return refuse(m, T::CeilingPrice);
  const std::string indicative = priceOrZero(f, T::IndicativePrice);
  if (auto m = tickMultipleRefusal("Indicative Price", indicative, tick); !m.empty())
    return refuse(m, T::IndicativePrice);
  const int64_t indicativePaise = rupeeTextPaise(indicative);
  // An issue without a ceiling or without an indicative price has nothing to compare.
  if (indicativePaise == 0) return {};
  const int64_t ceilingPaise = rupeeTextPaise(ceiling);
  if (ceilingPaise > 0 && indicativePaise > ceilingPaise)
    return refuse("Indicative Price Cannot be Greater than Ceiling Price", T::IndicativePrice);
  if (indicativePaise < rupeeTextPaise(text(f, T::FloorPrice)))
    return refuse("Indicative Price Cannot be Less than Floor Price", T::IndicativePrice);
  return {};
}

}  // namespace

IssueRefusal checkIssueDetails(const IssueDetailsFields& f) {
  if (f[L::Exchange].selected.empty()) return refuse("Please select the exchange", L::Exchange);
  if (text(f, T::SymbolName).empty()) return refuse("Please enter the Symbol Name", T::SymbolName);
  if (f[L::Series].selected.empty()) return refuse("Please Select a Series", L::Series);
  if (text(f, T::FaceValue).empty()) return refuse("Please enter the Face Value", T::FaceValue);
  if (text(f, T::Isin).empty()) return refuse("Please enter the ISIN", T::Isin);
  for (auto step : {checkPrices, checkDates, checkQuantities, checkDiscount, checkDescriptions,
                    checkOuterPrices})
    if (IssueRefusal r = step(f)) return r;
  return {};
}

bool isValidProspectusUrl(const std::string& url) {
  size_t hostStart = 0;
  for (const char* scheme : {"http://", "https://"}) {
    const std::string s = scheme;
    if (url.size() > s.size() && url.compare(0, s.size(), s) == 0) hostStart = s.size();
  }
  if (hostStart == 0) return false;
  for (char c : url)
    if (c == ' ' || c == '\t' || static_cast<unsigned char>(c) < 0x20) return false;
  const size_t hostEnd = url.find('/', hostStart);
  const std::string host = url.substr(hostStart, hostEnd - hostStart);
  const size_t dot = host.find('.');
  return dot != std::string::npos && dot > 0 && dot + 1 < host.size();
}
