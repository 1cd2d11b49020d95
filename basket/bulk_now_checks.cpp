// The NOW layout's bid line checks, in the order the exchange's file rules list them. The
// misspellings ("Invald") and the blanks around some texts are intended and must stay.
#include "basket/bulk_bid_checks.h"
#include "basket/bulk_shared_checks.h"
#include "domain/code_alphabet.h"

using namespace bulk;
using C = BidColumn;

namespace {

constexpr char kYes[] = "YES";
constexpr char kCollateralMismatch[] = "Participant Code and Block Collateral mismatched";
constexpr char kCpCodeCase[] = "CP code should be in Uppercase ";
constexpr char kWalkinIsTm[] = "Walkin Client code should not be TM code";

bool isNowClientType(std::string_view type) {
  return type == "WALKIN" || type == "OFFLINE" || type == "PRO";
}

std::string checkNowPro(const BidLine& l) {
  if (l[C::PCode] != l[C::ClientId]) return "Participant Code and Client ID mismatched";
  if (l[C::Margin] == kYes) return "Invalid Block Collateral value for category";
  if (!l[C::WalkinCode].empty()) return "Invald Walkin Client code for Client type";
  if (!l[C::WalkinName].empty()) return "Invald Walkin Client Name for Client type";
  return {};
}

// An offline client is an account of the user's; the walk-in code it must not carry is the
// account itself that may not be the TM code.
std::string checkNowOffline(const BidLine& l, const BidContext& c) {
  const std::string_view client = l[C::ClientId], pCode = l[C::PCode];
  if (client.empty()) return "Client Id Not Mentioned";
  if (client.size() > 10) return " Client ID length cannot be more than 10";
  if (c.participantCodeOf && !c.participantCodeOf(client)) return "Invalid Account ID";
  if (!l[C::WalkinCode].empty()) return "Invalid Walkin Client code for OFFLINE client";
  if (!l[C::WalkinName].empty()) return "Invalid Walkin Client Name for Client type";
  if (client == c.tmCode) return kWalkinIsTm;
  if (!pCode.empty() && l[C::Margin] == kYes) return kCollateralMismatch;
  if (!isUpperCase(pCode)) return kCpCodeCase;
  if (!inCodeAlphabet(client)) return "Client id cannot have Special Characters.";
  return {};
}

std::string checkNowWalkin(const BidLine& l, const BidContext& c) {
  const std::string_view code = l[C::WalkinCode], pCode = l[C::PCode];
  if (l[C::ClientId] != "WALKIN") return "Invalid Account ID for Client Type";
  if (!isUpperCase(code)) return "Walkin Client code should be in Uppercase";
  if (l[C::WalkinName].empty()) return "Walkin Client Name cannot be blank";
  if (code.size() > 10) return "Walkin Client code length cannot be more than 10 ";
  if (code.empty()) return "Walkin Client code cannot be blank";
  if (code == c.tmCode) return kWalkinIsTm;
  if (!pCode.empty() && l[C::Margin] == kYes) return kCollateralMismatch;
  if (!isUpperCase(pCode)) return kCpCodeCase;
  return {};
}

std::string checkNowClient(const BidLine& l, const BidContext& c) {
  const std::string_view type = l[C::NowClientType];
  if (type == "PRO") return checkNowPro(l);
  if (type == "OFFLINE") return checkNowOffline(l, c);
  return checkNowWalkin(l, c);
}

}  // namespace

std::string checkNowLine(const BidLine& l, const BidContext& c) {
  const std::string_view symbol = l[C::Symbol], series = l[C::Series], proCli = l[C::ProCli];
  const std::string_view type = l[C::NowClientType], pCode = l[C::PCode], margin = l[C::Margin];
  const std::string_view quantity = l[C::Quantity], price = l[C::Price];
  const bool retail = series == "RS";
  if (isEmptyOrBlanks(symbol) || isEmptyOrBlanks(series)) return "Symbol /Series not mentioned";
  if (!isUpperCase(symbol)) return "Symbol should be in Uppercase ";
  if (!isUpperCase(series)) return "Series should be in Uppercase ";
  if (series != "IS" && !retail) return "Series should be IS/ RS";
  if (!isNowClientType(type)) return "Invalid Client type";  // empty and blank included
  if (proCli != "CLI" && proCli != "PRO") return "Invalid Client category";
  if ((type == "PRO") != (proCli == "PRO")) return "Invalid Client Type and Category";
  if (!isUpperCase(l[C::ClientId])) return "Client Id to be in uppercase";
  if (margin != kYes && margin != "NO") return "Invalid Block Collateral";
  if (pCode.size() > 12) return "Participant Code length cannot be more than 12 ";
  if (isEmptyOrBlanks(quantity)) return "Quantity cannot be blank";
  if (quantity == "0") return "Quantity cannot be zero";
  if (isEmptyOrBlanks(price)) return "Price cannot be blank";
  if (price == "0") return kInvalidPrice;
  // An empty pro/cli was refused as an invalid category above, so "Category cannot be blank"
  // never shows.
  if (retail && margin != kYes) return "Invalid Block Collateral for Series";
  if (series == "IS" && price == kMarketPrice) return "Incorrect Cutoff Combination";
  if (retail && pCode != c.tmCode) return "Invalid Participant Code for Series";
  if (auto m = checkNowClient(l, c); !m.empty()) return m;
  const sOFSCol* issue = issueOfLine(l, c);
  if (price != kMarketPrice) {
    if (auto m = checkBidPrice(price, issue); !m.empty()) return m;
  }
  if (!inCodeAlphabet(l[C::WalkinCode]))
    return "Walking client code cannot have Special Characters.";
  if (!inCodeAlphabet(pCode)) return "Participant Code cannot have Special Characters.";
  if (!isDigits(quantity)) return "Invalid Qty";
  if (!pCode.empty() && c.knowsParticipantCode && !c.knowsParticipantCode(pCode)) {
    return "Invalid Participant code";
  }
  return checkAgainstIssue(l, c, issue);
}
