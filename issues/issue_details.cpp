#include "issues/issue_details.h"

#include "domain/char_classes.h"
#include "domain/date_text.h"
#include "domain/issue_price_rules.h"
#include "domain/number_text.h"
#include "domain/series.h"
#include "messaging/issue_admin_requests.h"

const std::array<IssueTextInfo, kIssueTextCount> kIssueTexts{{
    {"Symbol Name", IssueTyping::Any},
    {"ISIN", IssueTyping::Any},
    {"Face Value", IssueTyping::Price},
    {"Tick Size", IssueTyping::Price},
    {"Floor Price", IssueTyping::Price},
    {"RMS Price", IssueTyping::Price},
    {"Ceiling Price", IssueTyping::Price},
    {"Indicative Price", IssueTyping::Price},
    {"OFS Start Date", IssueTyping::Date},
    {"OFS Close Date", IssueTyping::Date},
    {"Final Modification Date", IssueTyping::Date},
    {"Order Closing Time", IssueTyping::Time},
    {"Min Quantity", IssueTyping::Digits},
    {"Multiple Quantity", IssueTyping::Digits},
    {"OFS Size", IssueTyping::Digits},
    {"Retail Limit", IssueTyping::Digits},
    {"Non Retail Individual Limit", IssueTyping::Digits},
    {"OFS Discount", IssueTyping::Price},
    {"Issue Notes", IssueTyping::Any},
    {"Prospectus URL", IssueTyping::Any},
    {"Company Name", IssueTyping::Any},
    {"Underlying Token", IssueTyping::Token},
}};

const std::array<const char*, kIssueListCount> kIssueListLabels{
    "Exchange", "Series", "Disc VP", "Symbol Display", "Order Placement"};

namespace {

using T = IssueText;
using L = IssueList;

constexpr size_t kTokenLimit = 24;
constexpr char kNoTime[] = "00:00:00";
const std::vector<std::string> kYesNo{"Yes", "No"};

bool isTyping(std::string_view text, std::string_view allowed) {
  return text.find_first_not_of(allowed) == std::string_view::npos;
}

using TextMember = std::string sOFSCol::*;
// Texts the record keeps as typed, and prices it keeps printed "%.2lf".
constexpr std::pair<IssueText, TextMember> kPlainTexts[] = {
    {T::SymbolName, &sOFSCol::field3},
    {T::Isin, &sOFSCol::field13041},
    {T::FaceValue, &sOFSCol::field13004},
    {T::TickSize, &sOFSCol::tickSizeText},
    {T::StartDate, &sOFSCol::field49165},
    {T::CloseDate, &sOFSCol::field79},
    {T::FinalModificationDate, &sOFSCol::field107},
    {T::Discount, &sOFSCol::field12019},
    {T::IssueNotes, &sOFSCol::field61002},
    {T::ProspectusUrl, &sOFSCol::field10046},
    {T::CompanyName, &sOFSCol::field49033},
    {T::UnderlyingToken, &sOFSCol::assetSymbol},
};
constexpr std::pair<IssueText, TextMember> kPrices[] = {
    {T::FloorPrice, &sOFSCol::floorPrice},
    {T::RmsPrice, &sOFSCol::field54079},
    {T::CeilingPrice, &sOFSCol::field63023},
    {T::IndicativePrice, &sOFSCol::field54803},
};

std::string flag(bool on) {
  return on ? "Y" : "N";
}
std::string yesNo(const std::string& letter) {
  return letter == "N" ? "No" : "Yes";
}
std::string letter(const std::string& yesOrNo) {
  return yesOrNo == "No" ? "N" : "Y";
}
std::string rupees(const std::string& text) {
  return text.empty() ? text : fixedText(leadingDouble(text), 2);
}

}  // namespace

void COFSIssueDetails::clear() {
  fields_ = IssueDetailsFields{};
  fields_[L::Exchange].items = {"NSE", "BSE"};
  fields_[L::Series].items = {"Retail", "Employee", "NonRetail"};
  fields_[L::DiscVp].items = {"V", "P"};
  fields_[L::DiscVp].enabled = false;
  fields_[T::Discount].enabled = false;
  fields_[L::SymbolDisplay].items = kYesNo;
  fields_[L::OrderPlacement].items = kYesNo;
  fields_[T::RetailLimit].enabled = false;
  fields_[T::NonRetailLimit].enabled = false;
  modified_ = sOFSCol{};
}

void COFSIssueDetails::openToAdd() {
  clear();
  adding_ = true;
  const std::string today = localTimeText(port_.now(), "%d/%m/%Y");
  for (T date : {T::StartDate, T::CloseDate, T::FinalModificationDate}) fields_[date].text = today;
  fields_[T::ClosingTime].text = kNoTime;
  fields_[L::SymbolDisplay].selected = "Yes";
  fields_[L::OrderPlacement].selected = "Yes";
  changed();
}

void COFSIssueDetails::openToModify(const sOFSCol& issue) {
  clear();
  adding_ = false;
  modified_ = issue;
  IssueDetailsFields& f = fields_;
  f[L::Exchange].selected = issue.exchange == "bse_ipo" ? "BSE" : "NSE";
  switchSeries(seriesWord(issue.category), false);
  for (const auto& [field, member] : kPlainTexts) f[field].text = issue.*member;
  for (const auto& [field, member] : kPrices) f[field].text = issue.*member;
  if (issue.field107.empty()) f[T::FinalModificationDate].text = issue.field79;
  f[T::ClosingTime].text = issue.field67.empty() ? kNoTime : issue.field67;
  f[T::MinQuantity].text = issue.minQuantityText;
  f[T::MultipleQuantity].text = issue.lotSizeText;
  f[T::OfsSize].text = issue.issueSizeText;
  if (f[T::RetailLimit].enabled) f[T::RetailLimit].text = issue.field54009;
  if (f[T::NonRetailLimit].enabled) f[T::NonRetailLimit].text = issue.hniLimit;
  setDiscountOffered(!issue.field12020.empty());
  f[L::DiscVp].selected = issue.field12020;
  f[T::Discount].text = issue.field12019;
  f.cutOff = issue.field63059 == "Y";
  f[L::SymbolDisplay].selected = yesNo(issue.field63017);
  f[L::OrderPlacement].selected = yesNo(issue.biddingFlag);
  changed();
}

bool COFSIssueDetails::acceptsTyping(IssueText field, const std::string& text) {
  PromptPort& prompt = port_.prompt();
  switch (kIssueTexts[static_cast<size_t>(field)].typing) {
    case IssueTyping::Any:
      return true;
    case IssueTyping::Digits:
    case IssueTyping::Price: {
      const bool price = kIssueTexts[static_cast<size_t>(field)].typing == IssueTyping::Price;
      if (price ? isPriceTyping(text) : isDigits(text)) return true;
      prompt.titledMessage("Unacceptable Character", "You can only type a number here.");
      return false;
    }
    case IssueTyping::Date:
      return isTyping(text, "0123456789/");
    case IssueTyping::Time:
      return isTyping(text, "0123456789:");
    case IssueTyping::Token:
      if (!isAlphanumeric(text)) {
        prompt.titledMessage("Unacceptable Character", "Only Alphanumeric characters are allowed.");
        return false;
      }
      if (text.size() > kTokenLimit) {
        prompt.titledMessage("Characters Exceeded",
                             "Underlying Token should be a maximum of 24 characters.");
        return false;
      }
      return true;
  }
  return false;
}

bool COFSIssueDetails::setText(IssueText field, const std::string& text) {
  EntryText& entry = fields_[field];
  if (!entry.enabled || !acceptsTyping(field, text)) return false;
  entry.text = text;
  return true;
}

// Retail and Employee issues are capped per investor (two and five lakh rupees); a non-retail
// bid must be above two lakh rupees.
void COFSIssueDetails::switchSeries(const std::string& word, bool withDefaults) {
  fields_[L::Series].selected = word;
  EntryText& retail = fields_[T::RetailLimit];
  EntryText& nonRetail = fields_[T::NonRetailLimit];
  retail.enabled = word == "Retail" || word == "Employee";
  nonRetail.enabled = word == "NonRetail";
  if (!withDefaults) return;
  retail.text = word == "Retail" ? "200000" : word == "Employee" ? "500000" : "";
  nonRetail.text = nonRetail.enabled ? "200001" : "";
}

bool COFSIssueDetails::select(IssueList list, const std::string& entry) {
  EntryChoice& choice = fields_[list];
  if (!choice.enabled) return false;
  bool listed = false;
  for (const std::string& item : choice.items) listed = listed || item == entry;
  if (!listed) return false;
  if (list == L::Series) {
    switchSeries(entry, true);
    changed();
  } else {
    choice.selected = entry;
  }
  return true;
}

void COFSIssueDetails::setCutOff(bool ticked) {
  fields_.cutOff = ticked;
}

void COFSIssueDetails::setDiscountOffered(bool ticked) {
  fields_.discountOffered = ticked;
  fields_[L::DiscVp].enabled = ticked;
  fields_[T::Discount].enabled = ticked;
  if (!ticked) {
    fields_[L::DiscVp].selected.clear();
    fields_[T::Discount].text.clear();
  }
  changed();
}

sOFSCol COFSIssueDetails::record() const {
  const IssueDetailsFields& f = fields_;
  sOFSCol issue = modified_;
  issue.exchange = f[L::Exchange].selected == "NSE" ? "nse_ipo" : "bse_ipo";
  for (const auto& [field, member] : kPlainTexts) issue.*member = f[field].text;
  for (const auto& [field, member] : kPrices) issue.*member = rupees(f[field].text);
  issue.category = seriesOfExchange(issue.exchange, f[L::Series].selected);
  issue.symbol = issue.field3 + "-" + issue.category;
  issue.tickSize = leadingDouble(issue.tickSizeText);
  issue.field67 = f[T::ClosingTime].text == kNoTime ? "" : f[T::ClosingTime].text;
  issue.minQuantity = leadingInt64(f[T::MinQuantity].text);
  issue.minQuantityText = std::to_string(issue.minQuantity);
  issue.lotSize = leadingInt64(f[T::MultipleQuantity].text);
  issue.lotSizeText = std::to_string(issue.lotSize);
  issue.issueSize = leadingDouble(f[T::OfsSize].text);
  issue.issueSizeText = fixedText(issue.issueSize, 0);
  issue.field54009 = f[T::RetailLimit].enabled ? f[T::RetailLimit].text : "";
  issue.hniLimit = f[T::NonRetailLimit].enabled ? f[T::NonRetailLimit].text : "";
  issue.field12020 = f[L::DiscVp].selected;
  issue.field63059 = flag(f.cutOff);
  issue.field63017 = letter(f[L::SymbolDisplay].selected);
  issue.biddingFlag = letter(f[L::OrderPlacement].selected);
  return issue;
}

void COFSIssueDetails::submit() {
  // The watch view opens the dialog only for holders of the right; this keeps any other path
  // from sending.
  if (!port_.hasAddIssueRight()) return;
  if (IssueRefusal refusal = checkIssueDetails(fields_)) {
    port_.prompt().message(refusal.message);
    port_.prompt().focus(refusal.field);
    return;
  }
  requestAddIssue(port_.messageLayer(), record(), 0, 0);
}

bool COFSIssueDetails::end() {
  const bool wasAdding = adding_;
  clear();
  adding_ = true;
  changed();
  return wasAdding;
}
