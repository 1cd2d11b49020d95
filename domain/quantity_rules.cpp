#include "domain/quantity_rules.h"

#include "domain/number_text.h"
#include "domain/refusal.h"

namespace {

const char* forThis(IssueNoun noun) {
  return noun == IssueNoun::Contract ? " for this contract" : " for this security";
}

const char* quantityWord(QuantityWord word) {
  return word == QuantityWord::Quantity ? "Quantity" : "Qty";
}

}  // namespace

bool checkQuantityMinimum(const std::string& quantity, const sOFSCol& issue, std::string& message) {
  if (leadingInt64(quantity) < issue.minQuantity) {
    return refuse(message, "Order minimum Quantity is " +
                               std::to_string(static_cast<unsigned long long>(issue.minQuantity)));
  }
  return true;
}

bool checkQuantityLot(const std::string& quantity, const sOFSCol& issue, std::string& message,
                      IssueNoun noun, QuantityWord word) {
  if (issue.lotSize != 0 && leadingInt64(quantity) % issue.lotSize != 0) {
    return refuse(message, std::string(quantityWord(word)) +
                               " should be a multiple of Lot which is " +
                               std::to_string(static_cast<unsigned long long>(issue.lotSize)) +
                               forThis(noun));
  }
  return true;
}

bool checkQuantityIssueSize(const std::string& quantity, const sOFSCol& issue, std::string& message,
                            IssueNoun noun, QuantityWord word) {
  if (issue.issueSize != 0 && static_cast<double>(leadingInt64(quantity)) > issue.issueSize) {
    return refuse(message, std::string(quantityWord(word)) + " should be lesser than " +
                               fixedText(issue.issueSize, 0) + " (Issue Size)" + forThis(noun));
  }
  return true;
}
