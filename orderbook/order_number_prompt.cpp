#include "orderbook/order_number_prompt.h"

#include <algorithm>
#include <cctype>
#include <iterator>

void CVornOrderNo::setOrderNo(const std::string& typed) {
  orderNo_.clear();
  std::copy_if(typed.begin(), typed.end(), std::back_inserter(orderNo_),
               [](unsigned char c) { return std::isdigit(c) != 0; });
}

bool CVornOrderNo::ok() {
  if (orderNo_.empty()) {
    prompt_.message("Please enter Order Number");
    return false;
  }
  openHistory_(orderNo_);
  return true;
}
