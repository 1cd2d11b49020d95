#include "domain/quantity_rules.h"

#include "domain/number_text.h"
#include "domain/refusal.h"

bool checkQuantityMinimum(const std::string& quantity, const sOFSCol& issue, std::string& message) {
  if (leadingInt64(quantity) < issue.minQuantity) {
    return refuse(message, "Order minimum Quantity is " +
                               std::to_string(static_cast<unsigned long long>(issue.minQuantity)));
  }
  return true;
}

bool checkQuantityLot(const std::string& quantity, const sOFSCol& issue, std::string& message) {
  if (issue.lotSize != 0 && leadingInt64(quantity) % issue.lotSize != 0) {
    return refuse(message, "Qty should be a multiple of Lot which is " +
                               std::to_string(static_cast<unsigned long long>(issue.lotSize)) +
                               " for this security");
  }
  return true;
}

bool checkQuantityIssueSize(const std::string& quantity, const sOFSCol& issue,
                            std::string& message) {
  if (issue.issueSize != 0 && static_cast<double>(leadingInt64(quantity)) > issue.issueSize) {
    return refuse(message, "Qty should be lesser than " + fixedText(issue.issueSize, 0) +
                               " (Issue Size) for this security");
  }
  return true;
}
