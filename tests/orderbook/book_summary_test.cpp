#include <gtest/gtest.h>

#include "orderbook/book_summary.h"

namespace {

sOFSOrderInfo order(const char* quantity, const char* paise, const char* priceType = "L") {
  sOFSOrderInfo o;
  o.quantity = quantity;
  o.price = paise;
  o.priceType = priceType;
  return o;
}

TEST(BookTotals, SumsOrdersSharesAndRupeesLeavingMarketOrdersOutOfTheAmount) {
  const struct {
    const char* name;
    std::vector<sOFSOrderInfo> orders;
    const char* text;
  } cases[] = {
      {"an empty list", {}, "Orders: 0   Quantity: 0   Amount: Rs 0.00"},
      {"paise become rupees",
       {order("10", "10150")},
       "Orders: 1   Quantity: 10   Amount: Rs 1,015.00"},
      {"odd paise are kept", {order("3", "10001")}, "Orders: 1   Quantity: 3   Amount: Rs 300.03"},
      {"one market order",
       {order("100", "10200"), order("20", "MKT", "MKT")},
       "Orders: 2   Quantity: 120   Amount: Rs 10,200.00   (1 MKT order not in amount)"},
      {"a market order by its type only",
       {order("5", "0", "MKT"), order("5", "MKT", "MKT")},
       "Orders: 2   Quantity: 10   Amount: Rs 0.00   (2 MKT orders not in amount)"},
      {"lakhs and crores grouped in twos",
       {order("123456", "10000"), order("1000", "100")},
       "Orders: 2   Quantity: 1,24,456   Amount: Rs 1,23,46,600.00"},
      {"an unreadable quantity counts nothing",
       {order("", "10000"), order("x", "10000")},
       "Orders: 2   Quantity: 0   Amount: Rs 0.00"},
  };
  for (const auto& c : cases) {
    BookTotals totals;
    for (const sOFSOrderInfo& o : c.orders) totals.add(o);
    EXPECT_EQ(bookTotalsText(totals), c.text) << c.name;
  }
}

}  // namespace
