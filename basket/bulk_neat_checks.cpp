// The NEAT layout's line checks, in the order the exchange's file rules list them. The
// misspellings and the blanks around some texts are intended and must stay.
#include "basket/bulk_bid_checks.h"
#include "basket/bulk_shared_checks.h"
#include "domain/code_alphabet.h"

using namespace bulk;
using C = BidColumn;

namespace {

constexpr char kInvalidCollateral[] = "Invalid Block Collateral";
constexpr char kFullCollateral[] = "01";

// Steps 17 and 18: what the client kind asks of account, participant code and collateral.
std::string checkNeatClient(const BidLine& l, const std::string& tm) {
  const std::string_view account = l[C::ClientId], pCode = l[C::PCode], margin = l[C::Margin];
  if (l[C::ProCli] == "PRO") {
    if (account != pCode) return "Participant Code and Account Number mismatched";
    if (margin == "02") return "Invalid Block Collateral value for category";
    if (margin != kFullCollateral) return kInvalidCollateral;
    return {};
  }
  if (account.empty()) return "Account Number cannot be blank for Client type";
  if (pCode.empty()) return "Participant Code cannot be blank for Client type";
  if (account.size() > 10) return "Walkin Client code length cannot be more than 10 ";
  if (margin != kFullCollateral && margin != "02") return kInvalidCollateral;
  if (pCode == tm && margin != kFullCollateral) {
    return "Participant Code and Block Collateral mismatched";
  }
  if (account == tm) return "Account Number should not be TM code";
  return {};
}

}  // namespace

std::string checkNeatLine(const BidLine& l, const BidContext& c) {
  const std::string_view symbol = l[C::Symbol], series = l[C::Series], proCli = l[C::ProCli];
  const std::string_view account = l[C::ClientId], pCode = l[C::PCode], margin = l[C::Margin];
  const std::string_view quantity = l[C::Quantity], price = l[C::Price];
  const bool retail = series == "RS";
  if (isBlankOrSpace(symbol) || isBlankOrSpace(series)) return "Symbol Or Series Is not Mentioned";
  if (!isUpperCase(symbol)) return "Symbol should be in Uppercase ";
  if (!isUpperCase(series)) return "Series should be in Uppercase ";
  if (isAllBlanks(series)) return "Series cannot be blank";
  if (series != "IS" && !retail) return "Series mentioned is incorrect";
  if (proCli.empty()) return "Category Not Mentioned";
  if (l[C::BookType] != "01") return "Invalid Book Type";  // blank included
  if (l[C::BuySell] != "01") return "Invalid Buy/Sell Indicator";
  if (account.empty()) return "Invalid Account Number";
  if (!isUpperCase(account)) return "Account Number should be in Uppercase";
  if (proCli != "PRO" && proCli != "CLI") return "Invalid Client Type";
  if (pCode.size() > 12) return "Participant Code length cannot be more than 12";
  if (!isUpperCase(pCode)) return "Participant code to be in uppercase";
  if (quantity.empty() || quantity == " ") return "Quantity cannot be blank";
  if (quantity == "0") return "Invalid Quantity";
  if (price.empty()) return "Price cannot be blank";
  if (price == "0") return kInvalidPrice;
  if (retail && pCode != c.tmCode) return "Invalid Participant Code for Series";
  if (series == "IS" && price == kMarketPrice) return "Incorrect Cutoff Combination";
  if (retail && margin != kFullCollateral) return "Invalid Block Collateral for Series";
  if (auto m = checkNeatClient(l, c.tmCode); !m.empty()) return m;
  if (!inCodeAlphabet(pCode)) return " Participant code cannot have special charecters.";
  if (!inCodeAlphabet(account)) return "Account Number cannot have special characters.";
  // The account column is the walk-in code too, so the walk-in code's own text never shows.
  if (!isDigits(quantity)) return "Invalid Qty";
  const sOFSCol* issue = issueOfLine(l, c);
  if (price != kMarketPrice) {
    if (auto m = checkBidPrice(price, issue); !m.empty()) return m;
  }
  return checkAgainstIssue(l, c, issue);
}
