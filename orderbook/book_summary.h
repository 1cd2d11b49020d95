// What the order book's lists show about their orders beyond the columns: the summary line
// under each list (how many orders, how many shares, what they amount to) and which lines the
// dealer can no longer touch. Market orders have no price of their own until the issue's cut-off is
// discovered, so they are counted but kept out of the amount rather than priced by a guess.
#pragma once

#include <cstdint>
#include <string>

#include "domain/records.h"

struct BookTotals {
  int64_t orders = 0;
  int64_t quantity = 0;
  int64_t amountPaise = 0;  // quantity times price of the priced orders
  int64_t marketOrders = 0;

  void add(const sOFSOrderInfo& order);
};

// "Orders: 3   Quantity: 1,250   Amount: Rs 1,27,500.00", with "   (1 MKT order not in
// amount)" after it when market orders were left out. Rupees are grouped the Indian way.
std::string bookTotalsText(const BookTotals& totals);

// The issue's flags or the order's carry-forward status refuse both modify and cancel.
bool modifyAndCancelRefused(const sOFSOrderInfo& order, const sOFSCol* issue);
