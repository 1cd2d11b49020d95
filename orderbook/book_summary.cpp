#include "orderbook/book_summary.h"

#include "orderbook/order_book_rules.h"

namespace {

// A whole number as the record holds it (its leading digits); anything else counts as nothing.
// Summing a million-line book is mostly this, hence no strtoll.
int64_t wholeNumber(const std::string& text) {
  size_t i = 0;
  while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
  const bool negative = i < text.size() && text[i] == '-';
  if (negative || (i < text.size() && text[i] == '+')) ++i;
  int64_t value = 0;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
    value = value * 10 + (text[i] - '0');
  return negative ? -value : value;
}

// 1234567 -> "12,34,567": the last three digits, then pairs.
std::string indianGrouped(int64_t value) {
  std::string digits = std::to_string(value < 0 ? -value : value);
  std::string grouped;
  const size_t n = digits.size();
  for (size_t i = 0; i < n; ++i) {
    const size_t left = n - i;
    if (i > 0 && (left == 3 || (left > 3 && (left - 3) % 2 == 0))) grouped += ',';
    grouped += digits[i];
  }
  return value < 0 ? "-" + grouped : grouped;
}

}  // namespace

void BookTotals::add(const sOFSOrderInfo& order) {
  const int64_t shares = wholeNumber(order.quantity);
  ++orders;
  quantity += shares;
  if (order.price == "MKT" || order.priceType == "MKT") {
    ++marketOrders;
    return;
  }
  amountPaise += shares * wholeNumber(order.price);
}

std::string bookTotalsText(const BookTotals& totals) {
  const int64_t paise = totals.amountPaise < 0 ? -totals.amountPaise : totals.amountPaise;
  const int64_t cents = paise % 100;
  std::string text = "Orders: " + indianGrouped(totals.orders) +
                     "   Quantity: " + indianGrouped(totals.quantity) + "   Amount: Rs " +
                     (totals.amountPaise < 0 ? "-" : "") + indianGrouped(paise / 100) + "." +
                     (cents < 10 ? "0" : "") + std::to_string(cents);
  if (totals.marketOrders == 1) text += "   (1 MKT order not in amount)";
  if (totals.marketOrders > 1)
    text += "   (" + std::to_string(totals.marketOrders) + " MKT orders not in amount)";
  return text;
}

bool modifyAndCancelRefused(const sOFSOrderInfo& order, const sOFSCol* issue) {
  return biddingClosed(issue) || modifyCancelClosed(issue) || cfInactive(order);
}
