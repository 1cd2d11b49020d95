#include "domain/client_rules.h"

#include "domain/char_classes.h"
#include "domain/code_alphabet.h"
#include "domain/refusal.h"

namespace {

constexpr char kSelectAccount[] = "Please select AccountId";
constexpr char kPCodeNoRetail[] = "Client with Pcode Cannot Place Retail Orders";

bool isBse(std::string_view exchange) {
  return exchange == "BSEIPO";
}

bool isInstitutionalCategory(const std::string& category) {
  return category == "IC" || category == "MF" || category == "OTHS";
}

bool offersCategory(const std::string& entry, const std::string& orderType,
                    const std::string& series, bool cutOff) {
  if (orderType == kNonInstitutionalOrder) return entry == "NII";
  if (orderType == kInstitutionalOrder) return entry != "NII";
  if (orderType == kRetailOrder && series == "Employee") return true;
  if (orderType == kRetailOrder && series == "Retail") return entry == (cutOff ? "RIC" : "RI");
  return false;
}

AccountVerdict refuseAccount(std::string& message) {
  message = kPCodeNoRetail;
  return AccountVerdict::Refuse;
}

}  // namespace

std::string marginFlag(const std::string& margin) {
  return margin == kNoMargin ? "NO" : "YES";
}

std::string clientTypeCode(const std::string& clientType) {
  return clientType == kProClient ? "F" : "C";
}

bool checkClientCategory(const CategoryBid& bid, std::string& message) {
  const std::string& c = bid.category;
  if (!isBse(bid.exchange)) {
    return c.empty() || refuse(message, "Client Category Should not be there for NSEIPO");
  }
  if (bid.series == "Retail" && bid.cutOff && c != "RIC") {
    return refuse(message, "Client Category should be RIC if Cutoff is Y and Series is Retail");
  }
  if (bid.series == "Retail" && !bid.cutOff && c != "RI") {
    return refuse(message, "Client Category should be RI if Cutoff is N and Series is Retail");
  }
  if (bid.series == "Employee" && c != "EMP") {
    return refuse(message, "Client Category should be EMP if Series is Employee");
  }
  if (bid.orderType == kNonInstitutionalOrder && c != "NII") {
    return refuse(message, "Client Category should be NII if OrderType is Non-Institutional");
  }
  if (bid.orderType == kInstitutionalOrder && !isInstitutionalCategory(c)) {
    return refuse(message, "Client Category should be IC,MF,or OTHS if OrderType is Institutional");
  }
  return true;
}

std::vector<std::string> bseCategoryChoices(const std::vector<std::string>& issueCategories,
                                            const std::string& orderType, const std::string& series,
                                            bool cutOff) {
  std::vector<std::string> kept;
  for (const std::string& entry : issueCategories) {
    if (offersCategory(entry, orderType, series, cutOff)) kept.push_back(entry);
  }
  return kept;
}

MarginChoices nseMarginChoices(const std::string& series, const std::string& pCode) {
  if (series == "IS" && !pCode.empty()) return {{kFullMargin, kNoMargin}, kNoMargin};
  return {{kFullMargin}, kFullMargin};
}

MarginChoices bseMarginChoices(const std::string& orderType, const std::string& pCode) {
  if (orderType == kInstitutionalOrder) {
    return {{kFullMargin, kNoMargin}, pCode.empty() ? kFullMargin : kNoMargin};
  }
  return {{kFullMargin}, kFullMargin};
}

AccountVerdict checkAccountPCode(const std::string& exchange, const std::string& series,
                                 const std::string& orderType, const std::string& pCode,
                                 std::string& message) {
  if (pCode.empty()) return AccountVerdict::Accept;
  if (!isBse(exchange)) {
    if (series == "RS" || series == "ES") return refuseAccount(message);
    return AccountVerdict::Accept;
  }
  if (series == "Retail" || series == "Employee") return refuseAccount(message);
  if (series == "NonRetail" && orderType == kNonInstitutionalOrder) {
    message =
        "Client with Pcode cannot place order in Non-institutional Order. Order Type is reset "
        "to Institutional";
    return AccountVerdict::ResetToInstitutional;
  }
  return AccountVerdict::Accept;
}

bool checkCategorySet(const std::string& exchange, const std::string& category,
                      std::string& message) {
  // The lower-case first letter is intended and must stay.
  if (isBse(exchange) && category.empty()) {
    return refuse(message, "client category is not set for the selected AccountID");
  }
  return true;
}

bool checkProMargin(const std::string& clientType, const std::string& margin,
                    std::string& message) {
  if (clientType == kProClient && marginFlag(margin) == "NO") {
    return refuse(message, "Margin Indicator should be set as 100% for PRO order");
  }
  return true;
}

bool checkWalkinCodes(const std::string& clientCode, const std::string& pCode,
                      std::string& message) {
  if (clientCode.empty()) return refuse(message, kSelectAccount);
  if (!isAlphanumeric(clientCode)) {
    return refuse(message, "Please enter an alphanumeric value for Client Code.");
  }
  if (!isAlphanumeric(pCode)) {
    return refuse(message, "Please enter an alphanumeric value for participant code.");
  }
  return true;
}

bool checkOrdinaryAccount(const std::string& clientCode, bool hostKnowsClient,
                          std::string& message) {
  if (clientCode.empty() || !hostKnowsClient) return refuse(message, kSelectAccount);
  return true;
}

bool checkPCodeOrderType(const std::string& pCode, const std::string& orderType,
                         std::string& message) {
  // One sentence with its full stop, unlike the message shown when the account is chosen.
  if (!pCode.empty() && orderType == kNonInstitutionalOrder) {
    return refuse(message, "Client with Pcode cannot place order in Non-institutional Order.");
  }
  return true;
}

std::string vtSeries(std::string_view exchange, std::string_view orderType) {
  const bool bse = isBse(exchange);
  if (orderType == kRetailOrder) return bse ? "Retail" : "RS";
  if (orderType == "Employee") return bse ? "Employee" : "ES";
  return bse ? "NonRetail" : "IS";
}

// The doubled percent signs of the original format texts print as one.
bool checkVtClientRules(const VtClientBid& bid, std::string& message) {
  const std::string_view type = bid.orderType;
  const bool retailLike = type == kRetailOrder || type == "Employee";
  const bool fullMargin = bid.margin == kFullMargin;
  if (!inCodeAlphabet(bid.clientId)) return refuse(message, "InValid ClientID");
  if (!retailLike && type != kNonInstitutionalOrder && type != kInstitutionalOrder) {
    return refuse(message, "InValid OrderType");
  }
  if (!bid.pCode.empty() && retailLike) {
    return refuse(message, "Client WIth Pcode Not Allowed to Place Retail Orders");
  }
  if (!isBse(bid.exchange) && !bid.category.empty()) {
    return refuse(message, "Client Category Should not be there for NSEIPO");
  }
  if (type == kRetailOrder && !fullMargin) {
    return refuse(message, "Margin Should be 100% for Retail orders");
  }
  if (type == kInstitutionalOrder && bid.pCode.empty() && !fullMargin) {
    return refuse(message, "Margin Should be 100% for Institutional orders if no Pcode");
  }
  // An NSE line with a category was refused above; only BSE lines meet the category table.
  if (isBse(bid.exchange)) {
    const CategoryBid category{std::string(bid.exchange), vtSeries(bid.exchange, type),
                               std::string(type), bid.cutOff, std::string(bid.category)};
    if (!checkClientCategory(category, message)) return false;
  }
  if (!bid.pCode.empty() && type == kNonInstitutionalOrder) {
    return refuse(
        message,
        std::string("Client WIth Pcode Not Allowed to Place ").append(type).append(" Orders"));
  }
  if (type != kInstitutionalOrder && !fullMargin) {
    return refuse(message,
                  std::string("Margin Should be 100% for ").append(type).append(" orders"));
  }
  return true;
}
