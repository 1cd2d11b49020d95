// The checks of the two allotment layouts. Each layout words its messages its own way; the
// order of the steps decides which message a line with several faults gets.
#include "domain/char_classes.h"
#include "issues/allotment_file.h"

namespace {

constexpr char kSymbolBlank[] = "Symbol cannot be blank";

// Empty or a single blank: the exchanges' way of leaving a column out.
bool isBlankOrSpace(std::string_view text) {
  return text.empty() || text == " ";
}

}  // namespace

std::string checkBseAllotment(const sOFSAllotmentRow& row) {
  if (row.symbol.empty()) return kSymbolBlank;
  if (row.orderNo.empty()) return "Order Number cannot be blank";
  if (isBlankOrSpace(row.allottedQuantity)) return "Allotment Qty cannot be blank";
  // "0" alone is zero; "00" is not, and passes the digit test too.
  if (row.allottedQuantity == "0") return "Allotment Qty cannot be zero";
  if (!isDigits(row.allottedQuantity)) return "Invalid Allotment Quantity";
  if (isBlankOrSpace(row.allottedPrice)) return "Allotment Price cannot be blank";
  if (row.allottedPrice == "0") return "Allotment Price cannot be zero";
  if (row.ucc.empty()) return "UCC cannot be blank";
  if (isBlankOrSpace(row.bidPrice)) return "Price cannot be blank";
  if (row.bidPrice == "0") return "Price cannot be zero";
  if (isBlankOrSpace(row.bidQuantity)) return "Quantity cannot be blank";
  if (row.bidQuantity == "0") return "Quantity cannot be zero";
  if (!isDigits(row.bidQuantity)) return "Invalid Quantity";
  return {};
}

std::string checkNseAllotment(const sOFSAllotmentRow& row) {
  if (row.symbol.empty()) return kSymbolBlank;
  if (row.orderNo.empty()) return "Order no cannot be blank";
  if (isBlankOrSpace(row.allottedQuantity)) return "Allotted Quantity cannot be blank";
  if (row.allottedQuantity == "0") return "Allotted Quantity cannot be zero";
  if (!isDigits(row.allottedQuantity)) return "Invalid Allotted Quantity";
  if (isBlankOrSpace(row.allottedPrice)) return "Allotted Price cannot be blank";
  if (row.allottedPrice == "0") return "Allotted Price cannot be zero";
  if (row.client.empty()) return "Client cannot be blank";
  if (isBlankOrSpace(row.bidPrice)) return "Bid Price cannot be blank";
  if (row.bidPrice == "0") return "Bid Price cannot be zero";
  if (isBlankOrSpace(row.bidQuantity)) return "Bid Quantity cannot be blank";
  if (row.bidQuantity == "0") return "Bid Quantity cannot be zero";
  if (!isDigits(row.bidQuantity)) return "Invalid Bid Quantity";
  return {};
}
